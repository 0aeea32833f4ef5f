#pragma once

#include <QWidget>

class QLabel;

// Reads news out to a screen reader wherever the focus is, since the boxes and messages of the
// game never have it. For such a reader it is a notification with a text in it (without a name:
// a reader leaves out a character that the name holds); on the screen it shows nothing. Each source
// of news has one of its own: a reader asks for the text only later, when another source may have
// spoken.
class Announcer : public QWidget
{
    Q_OBJECT

public:
    explicit Announcer(QWidget *parent);

    void say(const QString &text); // silent when empty

private:
    QLabel *text;
};
