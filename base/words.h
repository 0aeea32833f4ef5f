#pragma once

#include <QLabel>
#include <QStyle>
#include <QTextDocumentFragment>

// Where the words of a label stand in it. Labels are mostly larger than that: what frames or
// underlies words has to ask.
inline QRect wordsOf(const QLabel &label)
{
    label.ensurePolished(); // a style sheet may name a font
    QString text = label.text();
    if (label.textFormat() == Qt::RichText)
        text = QTextDocumentFragment::fromHtml(text).toPlainText();
    const int margin = label.margin();
    const int wrap = label.wordWrap() ? Qt::TextWordWrap : 0;
    return label.style()->itemTextRect(
        label.fontMetrics(), label.contentsRect().adjusted(margin, margin, -margin, -margin),
        int(label.alignment()) | wrap, true, text);
}
