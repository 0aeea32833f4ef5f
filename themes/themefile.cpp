#include "themefile.h"

#include "ui_fontspanel.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QTextStream>

namespace {

constexpr qint64 maxBytes = 1 << 20; // a theme has some 20 KiB
constexpr int extension = 4;         // ".txt"

// A family that is not there is named all the same, and an empty one changes nothing.
void chooseFont(QComboBox *box, const QString &family)
{
    const QSignalBlocker quiet(box);
    const int index = box->findText(family);
    if (index >= 0)
        box->setCurrentIndex(index);
    else if (!family.isEmpty())
        box->setCurrentText(family);
}

// A name in a label of fixed width, whole in its tool tip.
void showName(QLabel *label, const QString &name)
{
    label->setText(label->fontMetrics().elidedText(name, Qt::ElideRight, label->width()));
    label->setToolTip(label->text() == name ? QString() : name);
}

void warn(QLabel *warning, const QString &text)
{
    warning->setText(text);
    warning->show();
}

} // namespace

bool ThemeFile::write(const QString &path, const Fields &fields)
{
    const QFileInfo former(path);
    QSaveFile file(path);
    if (path.isEmpty() || (former.exists() && !former.isFile()) ||
        !file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    for (const Field &field : fields)
        stream << *field.text << '\n';
    stream.flush();
    return stream.status() == QTextStream::Ok && file.commit();
}

bool ThemeFile::read(const QString &path, const Fields &fields)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    if (file.size() > maxBytes)
        return false;
    const QByteArray bytes = file.readAll();
    // With its length, or a NUL byte would be taken for the end.
    // Qt drops one byte order mark at the start, and would drop the second at the next reading.
    const QStringList lines =
        QString::fromUtf8(bytes.constData(), bytes.size()).remove(QChar::ByteOrderMark).split('\n');
    for (int i = 0; i < fields.size(); ++i) {
        const QString line = lines.value(i);
        *fields[i].text = StyleText::isHarmless(fields[i].kind, line) ? line : QString();
    }
    return true;
}

void ThemeFile::take(const QString &text, int largest, int &number)
{
    if (text.isEmpty())
        number = 0;
    for (int each = 1; each <= largest; ++each) {
        if (text == QString::number(each))
            number = each;
    }
}

void ThemeFile::put(int number, int largest, QString &text)
{
    if (number >= 1 && number <= largest)
        text = QString::number(number);
}

void ThemeFile::Shared::readFonts()
{
    lowerFontName = form.fontComboBoxLowercase->currentText();
    upperFontName = form.fontComboBoxUppercase->currentText();
}

void ThemeFile::Shared::chooseFonts() const
{
    chooseFont(form.fontComboBoxLowercase, lowerFontName);
    chooseFont(form.fontComboBoxUppercase, upperFontName);
}

void ThemeFile::Shared::name(const QString &path)
{
    if (path.isEmpty()) {
        currentThemeName = lastThemeName;
        return;
    }
    currentThemeName = path.section('/', -1);
    currentThemeName.chop(extension);
    lastThemeName = currentThemeName;
}

void ThemeFile::save(const QString &path, const Fields &fields, const Kind &kind)
{
    if (path.isEmpty())
        return;
    if (write(path, fields))
        kind.own.warning->hide();
    else
        warn(kind.own.warning, "This file cannot be saved here");
}

bool ThemeFile::open(const QString &path, const Fields &fields, const Kind &kind, Shared &shared)
{
    const Labels &own = kind.own;
    own.warning->hide();
    if (!path.isEmpty() && !read(path, fields)) {
        warn(own.warning, "This file cannot be read");
        return false;
    }
    shared.name(path);
    showName(own.name, shared.currentThemeName);
    if (path.isEmpty())
        return false;
    if (kind.marker != QLatin1String(kind.wanted))
        warn(own.warning, kind.refusal);
    if (shared.themeLanguageMarker != QLatin1String("0"))
        warn(own.warning, "This is not an English Theme.");
    own.name->show();
    own.heading->show();
    for (QLabel *label : {kind.other.name, kind.other.heading, kind.other.warning})
        label->hide();
    kind.other.name->clear();
    return true;
}
