// Has the program wear each look of the table and save it in both formats, so that no file is
// written by anything but the program's own writer. looks/make runs it.
//
//     makelooks FOLDER                       writes the files
//     makelooks --check FOLDER               tells those that are not what the program would write
//     makelooks --pictures FOLDER PICTURES   a picture of each, and a line about it on stdout
//     makelooks --fingers FOLDER FILE.png    the finger map of the Instructions

#include "dresser.h"
#include "filechoice.h"
#include "gradientpanels.h"
#include "optionrooms.h"
#include "platform.h"
#include "resources.h"
#include "soundplayer.h"
#include "table.h"
#include "tambrel.h"
#include "ui_fontspanel.h"
#include "virtualtime.h"

#include <QtWidgets>

using namespace ReadyLooks;

namespace {

const bool timeIsVirtual = (VirtualTime::begin(), true);

constexpr const char *kinds[] = {"Keyboard", "Paint"};
constexpr const char *fingerMap = "Finger Colors";

QString fileOf(const QString &folder, const char *kind, const QString &name)
{
    return QString("%1/%2 Looks/%3.txt").arg(folder, kind, name);
}

class NamedFile : public FileChoice
{
public:
    explicit NamedFile(const QString &named) : file(named) {}
    QStringList files(const QString &) override { return {}; }
    QString toOpen(const QString &) override { return file; }
    QString toSave(const QString &, const QString &) override { return file; }

private:
    const QString &file;
};

// A window as after a start, and what is done with it here.
class Studio
{
public:
    Studio()
        : window(std::make_unique<tambrel>(
              nullptr,
              tambrel::Outside{std::make_unique<SilentPlayer>(), std::make_unique<NamedFile>(file)},
              tambrel::Start::Unseen))
    {
        window->openTambrel();
        window->options();
    }

    void wearKeyboard(const ReadyLook &look);
    void paintKeys(const ReadyLook &look);
    void nameLines();
    void click(const QString &button) { window->findChild<QAbstractButton *>(button)->click(); }
    void answer(const QString &button, const QString &path)
    {
        file = path;
        click(button);
    }
    void play();
    QPixmap picture() const { return window->grab(); }
    QPixmap keyboard() const;

private:
    Looks &looks() { return window->wardrobe().looks; }
    void type(char character);
    void putOn();

    QString file;
    std::unique_ptr<tambrel> window;
};

QString stopText(int tenths)
{
    return tenths == 0 || tenths == 10 ? QString::number(tenths / 10)
                                       : "." + QString::number(tenths);
}

void take(const Ground &ground, Look &look)
{
    look.bgShape = ground.shape;
    look.bgEnd = look.bgEndHex = ground.end;
    look.bgStart = look.bgStartHex = *ground.start ? ground.start : ground.end;
    look.bgStopPos = ground.stop;
    look.gradStop = stopText(ground.stop);
    look.buildBackground();
}

void take(const Edge &edge, Look &look)
{
    if (edge.width == 0)
        return;
    look.borderShape = edge.shape;
    look.borderEnd = look.borderEndHex = edge.end;
    look.borderStart = look.borderStartHex = *edge.start ? edge.start : edge.end;
    look.borderWidth = QString::number(edge.width);
    look.borderStopPos = 10;
    look.gradStop = stopText(10);
    look.buildBorder();
}

void take(const State &state, Look &look)
{
    take(state.edge, look);
    take(state.ground, look);
}

QString text(const char *color)
{
    return QString("color: %1;").arg(color);
}

void take(const State &state, KeyLook &look)
{
    take(state, static_cast<Look &>(look));
    look.upperTextStyle = text(state.upper);
    look.lowerTextStyle = text(state.lower);
}

void Studio::wearKeyboard(const ReadyLook &look)
{
    Looks &l = looks();
    take(look.key, l.key);
    take(look.keypress, l.keypress);
    take(look.mouseover, l.mouseover);
    take(look.highlight, l.highlight);
    take(look.finished, l.finished);
    l.finishedTextStyle = text(look.finished.lower);
    l.keypressLowerTextSaved = l.keypress.lowerTextStyle;
    take(look.wallpaper, l.wallpaper);
    take(look.frame, l.wallpaper);
    take(look.boxes, l.gamePlay);
    l.matchBox = l.userBox = {l.gamePlay.bgStyle, l.gamePlay.borderStyle, false};
    l.matchTextStyle = text(look.boxes.upper);
    l.userTextStyle = text(look.boxes.lower);
    LineLook &lines = l.lineHigh;
    for (QString *color :
         {&lines.horizontalEnd, &lines.horizontalStart, &lines.verticalEnd, &lines.verticalStart})
        *color = look.lines;
    nameLines();
    lines.buildHorizontal(GradientText::TopToBottom);
    lines.buildVertical(GradientText::TopToBottom);

    // A font is named in its box also where it is not installed.
    const Ui::fontsPanel &fonts = *window->options().forms.fonts;
    for (QFontComboBox *box : {fonts.fontComboBoxLowercase, fonts.fontComboBoxUppercase}) {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(box->findText(look.font));
        box->setEditText(look.font);
    }
    l.lowerFontStyle = l.upperFontStyle =
        StyleText::fontFamily(look.font) +
        (look.points > 0 ? QString(" font-size: %1pt;").arg(look.points) : QString());
    putOn();
}

// Of the vertical lines a file has no other colors than these, and no color is none.
void Studio::nameLines()
{
    LineLook &lines = looks().lineHigh;
    lines.horizontalStartHex = lines.horizontalStart;
    lines.horizontalEndHex = lines.horizontalEnd;
    lines.verticalStartHex = lines.verticalStart;
    lines.verticalEndHex = lines.verticalEnd;
}

void Studio::paintKeys(const ReadyLook &look)
{
    PaintTables &paint = window->wardrobe().paint;
    for (const Keys::Place place : Keys::places) {
        State state =
            look.paints[size_t(paintOf(look.pattern, place.index(), int(look.paints.size())))];
        if (look.pattern == Pattern::Fingers && isHome(place.index()))
            state.edge.width = 3;
        Look piece;
        take(state, piece);
        const auto i = static_cast<size_t>(place.index());
        paint.paintKeyBgStyle[i] = piece.bgStyle;
        paint.paintKeyBorderStyle[i] = piece.borderStyle;
        if (!place.isCap()) {
            paint.paintExtraTextStyle[size_t(place.controlIndex())] = text(state.lower);
            continue;
        }
        const auto of = [&](bool shifted) -> QString & {
            return paint.paintTextStyle[Keys::index(Keys::keyOfCap(place.cap(), shifted))];
        };
        of(false) = text(state.lower);
        of(true) = text(state.upper);
    }
    // The marks under f and j go with their letters.
    for (const char mark : {'f', 'j'})
        paint.paintExtraTextStyle[Keys::controlCount + (mark == 'j')] =
            paint.paintTextStyle[Keys::index(Keys::fromCode(mark - 'a' + 'A', false))];
    for (const auto part :
         {PaintTables::Background, PaintTables::Border, PaintTables::Lower, PaintTables::Upper})
        paint.parts[part].keep(true);
    putOn();
}

void Studio::putOn()
{
    window->options().gradients.showLooks();
    window->options().dresser.all();
}

void Studio::type(char character)
{
    const int code = QChar::toUpper(uint(character));
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, code, {});
        QApplication::sendEvent(window.get(), &event);
        VirtualTime::pass(50);
    }
}

// A few right entries, so that some keys are finished; then one is highlighted, one under the
// mouse and one pressed.
void Studio::play()
{
    click("start");
    VirtualTime::pass(12500); // the clock between two seconds
    for (const char character : {'a', 'b', 'c', 'd', 'e'}) {
        type(character);
        type(' ');
        VirtualTime::pass(2000);
    }
    click("goldenHighlight");
    window->keyFeedback().key(Keys::fromCode('J', false));
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(window->furniture().widgets.shield(15), &enter); // o
    VirtualTime::pass(100);
}

QPixmap Studio::keyboard() const
{
    const QPixmap cut = window->grab({147, 393, 912, 297});
    QPixmap rounded(cut.size());
    rounded.setDevicePixelRatio(cut.devicePixelRatio());
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath frame;
    frame.addRoundedRect(QRectF({}, QSizeF(cut.size()) / cut.devicePixelRatio()), 10, 10);
    painter.setClipPath(frame);
    painter.drawPixmap(0, 0, cut);
    return rounded;
}

void makeFiles(const QString &folder)
{
    for (const char *kind : kinds)
        QDir(folder).mkpath(QString("%1 Looks").arg(kind));
    const auto save = [&](Studio &studio, int kind, const QString &name) {
        studio.answer(QString("save%1").arg(kinds[kind]), fileOf(folder, kinds[kind], name));
    };
    Studio fresh;
    fresh.nameLines();
    for (int kind = 0; kind < 2; ++kind)
        save(fresh, kind, plain);
    for (const ReadyLook &look : table()) {
        Studio studio;
        studio.wearKeyboard(look);
        save(studio, 0, look.name);
        studio.paintKeys(look);
        save(studio, 1, look.name);
        // Opened, the first key tells how all others look, and the file says so.
        studio.answer("openPaint", fileOf(folder, kinds[1], look.name));
        save(studio, 1, look.name);
    }
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int check(const QString &folder)
{
    const QTemporaryDir made;
    makeFiles(made.path());
    int others = 0;
    for (const char *kind : kinds) {
        const QString sub = QString("/%1 Looks").arg(kind);
        QStringList names = QDir(made.path() + sub).entryList(QDir::Files);
        names += QDir(folder + sub).entryList(QDir::Files);
        names.removeDuplicates();
        for (const QString &name : qAsConst(names)) {
            const QString path = sub + '/' + name;
            if (bytesOf(made.path() + path) == bytesOf(folder + path))
                continue;
            fprintf(stderr, "not as looks/make would make it: %s\n", qPrintable(folder + path));
            ++others;
        }
    }
    return others == 0 ? 0 : 1;
}

// Opened from the files, as a player would.
void takePictures(const QString &folder, const QString &pictures)
{
    const auto takeOne = [&](const char *name, const char *about) {
        printf("%s\t%s\n", name, about);
        for (const bool painted : {false, true}) {
            Studio studio;
            studio.answer("openKeyboard", fileOf(folder, "Keyboard", name));
            if (painted)
                studio.answer("openPaint", fileOf(folder, "Paint", name));
            studio.play();
            studio.picture().save(
                QString("%1/%2%3.png").arg(pictures, name, painted ? " painted" : ""));
        }
    };
    takeOne(plain, aboutPlain);
    for (const ReadyLook &look : table())
        takeOne(look.name, look.about);
}

} // namespace

int main(int argc, char *argv[])
{
    Platform::prepare();
    QApplication application(argc, argv);
    Platform::makeFusion();
    loadResources();
    Platform::installFonts();
    const QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.size() == 2 && arguments[0] == "--check")
        return check(arguments[1]);
    if (arguments.size() == 3 && arguments[0] == "--pictures") {
        takePictures(arguments[1], arguments[2]);
    } else if (arguments.size() == 3 && arguments[0] == "--fingers") {
        Studio studio;
        studio.answer("openKeyboard", fileOf(arguments[1], "Keyboard", fingerMap));
        studio.answer("openPaint", fileOf(arguments[1], "Paint", fingerMap));
        studio.keyboard().save(arguments[2]);
    } else if (arguments.size() == 1) {
        makeFiles(arguments[0]);
    } else {
        fprintf(stderr, "see the first lines of looks/src/makelooks.cpp\n");
        return 1;
    }
    return 0;
}
