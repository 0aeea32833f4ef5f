#include "themefile.h"

#include "panelwidgets.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextStream>

namespace {

constexpr qint64 maxBytes = 1 << 20; // a theme has some 20 KiB
constexpr int maxLine = 2000;        // characters; the longest style has 250
constexpr int extension = 4;         // ".txt"

// Style sheets may name files, which Qt opens at once, a device or a pipe as well; and a number
// of pixels that no screen has can take minutes to lay out.
bool isHarmless(const QString &style)
{
    static const QRegularExpression bad("url\\s*\\(|qproperty|\\\\|@|(?<![#0-9a-f.])[0-9]{5,}",
                                        QRegularExpression::CaseInsensitiveOption);
    return style.size() <= maxLine && !style.contains(QChar::Null) && !style.contains(bad);
}

constexpr const char *lowerBox = "fontComboBoxLowercase";
constexpr const char *upperBox = "fontComboBoxUppercase";

// A family that is not there is named all the same, and an empty one changes nothing.
void chooseFont(const PanelWidgets &widgets, const QString &comboBox, const QString &family)
{
    auto *box = widgets.find<QComboBox>(comboBox);
    const int index = box->findText(family);
    if (index >= 0)
        box->setCurrentIndex(index);
    else if (!family.isEmpty())
        box->setCurrentText(family);
}

} // namespace

bool ThemeFile::write(const QString &path, const Fields &fields)
{
    QSaveFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    for (const QString *field : fields)
        stream << *field << '\n';
    stream.flush();
    return stream.status() == QTextStream::Ok && file.commit();
}

bool ThemeFile::read(const QString &path, const Fields &fields)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    const QString text = QString::fromUtf8(file.read(maxBytes));
    QStringList lines = text.split('\n');
    for (int i = 0; i < fields.size(); ++i) {
        const QString line = lines.value(i);
        *fields[i] = isHarmless(line) ? line : QString();
    }
    return true;
}

QString ThemeFile::askToSave(QWidget &window, const QString &title, const QString &suggestion)
{
    return QFileDialog::getSaveFileName(&window, title, suggestion, "Text Files (*.txt)");
}

QString ThemeFile::askToOpen(QWidget &window, const QString &title)
{
    return QFileDialog::getOpenFileName(&window, title, ".", "Text Files (*.txt)");
}

void ThemeFile::take(const QString &text, int largest, int &number)
{
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

void ThemeFile::Shared::readFonts(const PanelWidgets &widgets)
{
    lowerFontName = widgets.find<QComboBox>(lowerBox)->currentText();
    upperFontName = widgets.find<QComboBox>(upperBox)->currentText();
}

void ThemeFile::Shared::chooseFonts(const PanelWidgets &widgets) const
{
    chooseFont(widgets, lowerBox, lowerFontName);
    chooseFont(widgets, upperBox, upperFontName);
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

bool ThemeFile::open(const QString &path, const Fields &fields, const Kind &kind, Shared &shared,
                     const PanelWidgets &widgets)
{
    const QString name = kind.label, other = kind.otherLabel;
    auto *label = widgets.find<QLabel>(name);
    auto *warning = widgets.find<QLabel>(name + "_3");
    shared.name(path);
    label->setText(shared.currentThemeName);
    warning->hide();
    if (path.isEmpty() || !read(path, fields))
        return false;
    const auto warn = [warning](const char *text) {
        warning->setText(text);
        warning->show();
    };
    if (kind.marker != QLatin1String(kind.wanted))
        warn(kind.warning);
    if (shared.themeLanguageMarker != QLatin1String("0"))
        warn("This is not an English Theme.");
    label->show();
    widgets.find(name + "_2")->show();
    for (const char *ending : {"", "_2", "_3"})
        widgets.find(other + ending)->hide();
    widgets.find<QLabel>(other)->clear();
    return true;
}
