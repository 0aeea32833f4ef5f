#include "optionpanels.h"

#include "board.h"
#include "fadeengine.h"
#include "mousetable.h"
#include "nonvitals.h"
#include "picture.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QAbstractButton>
#include <QGraphicsDropShadowEffect>
#include <QPropertyAnimation>
#include <QTabWidget>

namespace {

constexpr int prepareMs = 400;  // the opening window has been painted by then
constexpr int reopenMs = 60;    // until then the options refuse to open again
constexpr int slideOutMs = 200; // from Close to the first slide
constexpr int arrowsMs = 1000;  // from Options to the arrows
constexpr int firstTextMs = 50; // from the arrows to the texts
constexpr int secondTextMs = 200;
constexpr int wallpaperTab = 6;

struct PanelRow
{
    OptionPanels::Panel id;
    QPushButton *Ui_tambrel::*menu;
    QLabel *Ui_tambrel::*marker;
    const char *pieces; // objectNames, from the panel's form
};

constexpr PanelRow rows[] = {
    {OptionPanels::ColorMadness, &Ui_tambrel::menuColorMadness, &Ui_tambrel::markerCm,
     "tabWidget frameTabShield frameXRay frameWallpaper swapGradient7"},
    {OptionPanels::KestrixKeyboard, &Ui_tambrel::menuKestrixKeyboard, &Ui_tambrel::markerEk,
     "frameKestrixKeyboard openImageFinished clearKestrexKeyboardImage openAudioPulse"},
    {OptionPanels::Fonts, &Ui_tambrel::menuFonts, &Ui_tambrel::markerFonts,
     "frameFonts fontComboBoxLowercase fontComboBoxUppercase"},
    {OptionPanels::Photos, &Ui_tambrel::menuPhotos, &Ui_tambrel::markerPictures,
     "framePhotos framePhotosMain openImageKeys clearKeysImage openImageKeypress "
     "clearKeypressImage "
     "openImageHighlight clearHighlightImage openImageMouseover clearMouseoverImage openImageMain "
     "clearMainImage xRayVision"},
    {OptionPanels::Shadows, &Ui_tambrel::menuShadows, &Ui_tambrel::markerShadows, "frameShadows"},
    {OptionPanels::Audio, &Ui_tambrel::menuAudio, &Ui_tambrel::markerAudio, "frameAudio openAudio"},
    {OptionPanels::GamePlay, &Ui_tambrel::menuGamePlay, &Ui_tambrel::markerExtra,
     "frameGamePlayS frameGamePlayS_2 frameGamePlayCM swapGradient27"},
};

// In which a panel that opens closes the others.
constexpr OptionPanels::Panel closingOrder[] = {
    OptionPanels::ColorMadness, OptionPanels::Photos,
    OptionPanels::Fonts,        OptionPanels::KestrixKeyboard,
    OptionPanels::Shadows,      OptionPanels::GamePlay,
    OptionPanels::Audio};

// Where pieces are parked; all others at x 1500 beside their place.
struct Parked
{
    const char *name;
    int x, y; // px
};

constexpr Parked parkedPlaces[] = {
    {"frameAudio", 1500, 405},
    {"openAudio", 1500, 300},
    {"frameKestrixKeyboard", 1500, 305},
    {"openAudioPulse", 1500, 115},
    {"frameFonts", 0, 1500},
    {"fontComboBoxLowercase", 308, 1500},
    {"fontComboBoxUppercase", 606, 1500},
    {"frameLinehighlight", 1500, 0},
    {"swapGradient6", 1464, 103},
};
constexpr int parkedX = 1500;

constexpr int tabCount = 10;
constexpr const char *tabSelectedStyle = "border: 3px solid  qradialgradient( cx:  .5,    cy:  .5, "
                                         "   radius: .5,     fx:0.5,     fy:0.5,stop: "
                                         "0 gold,      stop: 1 black);background-color: "
                                         "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,stop: 0 "
                                         "gold,      stop: 1  black);font: 10pt 'MS Shell Dlg 2';";
constexpr const char *tabOddStyle =
    "border: none; background-color: rgb(170, 0, 0);  font: 10pt 'MS Shell Dlg 2';";
constexpr const char *tabEvenStyle =
    "border: none; background-color: blue;           font: 10pt 'MS Shell Dlg 2';";
constexpr const char *tabOddHoverStyle =
    "border: 3px solid purple; background-color: rgb(170, 0, 0);  font: 10pt 'MS Shell Dlg 2';";
constexpr const char *tabEvenHoverStyle =
    "border: 3px solid purple; background-color: blue;  font: 10pt 'MS Shell Dlg 2';";

} // namespace

// x, y, width, height in px. The ways in and out differ a little, which is wanted.
struct Slide
{
    QWidget *widget;
    QRect from, to;
    int ms;
};

OptionPanels::OptionPanels(Board &usedBoard, QWidget &mainWindow, NonVitals &nonVitals,
                           FadeEngine &fadeEngine, MouseTable &mouseTable,
                           std::function<void()> formBuilder)
    : board(usedBoard),
      vitals(nonVitals),
      fades(fadeEngine),
      mouse(mouseTable),
      window(mainWindow),
      buildForms(std::move(formBuilder))
{
    for (QLabel *arrow : {board.ui.optionsArrow1, board.ui.optionsArrow2, board.ui.optionsArrow3})
        arrow->setPixmap(picture(":/new/prefix1/optionsArrow.png"));
    for (const PanelRow &row : rows) {
        connect(board.ui.*row.menu, &QPushButton::clicked, this, [this, row] {
            if (!tableLeaves)
                show(row.id);
        });
    }
    connect(board.ui.options, &QPushButton::clicked, this, &OptionPanels::showFrame);
    connect(board.ui.closeX, &QPushButton::clicked, this, &OptionPanels::hideFrame);
    connect(board.ui.lineHighOptions, &QPushButton::clicked, this,
            &OptionPanels::lineHighOptions_function);
    connect(board.ui.hideNonVitals, &QPushButton::clicked, this,
            [this] { vitals.hideNonVitals_function(); });
    // Bursts rise to below the shield, which waits beside the window.
    raiseFurniture();
    Sequence::after(prepareMs, this, [this] { prepare(); });
}

void OptionPanels::raiseFurniture()
{
    Ui::tambrel &ui = board.ui;
    for (QWidget *widget :
         QList<QWidget *>{ui.optionsShield, ui.tableOfContents, ui.closeX, ui.optionsArrow1,
                          ui.optionsArrow2, ui.optionsArrow3, ui.optionsText1, ui.optionsText2})
        widget->raise();
}

void OptionPanels::prepare()
{
    if (prepared)
        return;
    prepared = true;
    buildForms();
    for (const PanelRow &row : rows) {
        panels.push_back({board.ui.*row.menu, board.ui.*row.marker, piecesOf(row.pieces)});
        place(panels.back().pieces, false);
        enableInputs(row.id, false);
    }
    linePieces = piecesOf("frameLinehighlight swapGradient6");
    place(linePieces, false);
    connectPieces();
    addTabRows();
    mouse.add(board.panelWidgets.find("linePosition1Uppercase"),
              {{}, {}, [this] { emit linesLowered(); }});
    mouse.add(board.panelWidgets.find("linePosition2Uppercase"),
              {{}, {}, [this] { emit linesRaised(); }});
    thumbnails.loadGifs(window);
    showTab(1);
    showWallpaperFrames(false);
    fades.setSample(board.panelWidgets.find("tnFadeExample"),
                    board.panelWidgets.find("tnFadeExample_2"));
}

void OptionPanels::connectPieces()
{
    const auto onClick = [this](const char *name, auto slot) {
        connect(board.panelWidgets.button(name), &QAbstractButton::clicked, this, slot);
    };
    onClick("bridgeTop", [this] { bridgeTop_function(); });
    onClick("bridgeBottom", [this] { bridgeBottom_function(); });
    onClick("xRayColorMadnessOn", [this] { vitals.xNonVitalsOn2_function(); });
    onClick("xRayColorMadnessOff", [this] { vitals.xNonVitalsOff2_function(); });
    onClick("xRayVision", [this] {
        if (board.panelWidgets.isChecked("xRayVision"))
            vitals.xNonVitalsOffPhotos_function();
        else
            vitals.xNonVitalsOnPhotos_function();
    });
    onClick("fadeOut", [this] { fades.fadeOut_function(); });
    onClick("fadeOutIn", [this] { fades.fadeInOut_function(); });
    onClick("effectNone", [this] { fades.clearFade(); });
}

// The tabs of Color Madness are labels.
void OptionPanels::addTabRows()
{
    for (int number = 1; number <= tabCount; ++number) {
        auto *shadow = new QGraphicsDropShadowEffect(&window);
        shadow->setOffset(4, 4);
        tabLabel(number)->setGraphicsEffect(shadow);
        mouse.add(tabLabel(number), {[this, number] {
                                         if (number != selectedTab)
                                             wear(tabLabel(number), number % 2 ? tabOddHoverStyle
                                                                               : tabEvenHoverStyle);
                                     },
                                     [this, number] {
                                         if (number != selectedTab)
                                             wear(tabLabel(number), restingTab(number));
                                     },
                                     [this, number] { showTab(number); }});
    }
}

QWidget *OptionPanels::tabLabel(int number) const
{
    return board.panelWidgets.find(QString("labelTab%1").arg(number));
}

QString OptionPanels::restingTab(int number) const
{
    return number % 2 ? tabOddStyle : tabEvenStyle;
}

void OptionPanels::showTab(int number)
{
    prepare();
    selectedTab = number;
    board.panelWidgets.find<QTabWidget>("tabWidget")->setCurrentIndex(number - 1);
    for (int each = 1; each <= tabCount; ++each)
        wear(tabLabel(each), each == number ? tabSelectedStyle : restingTab(each));
    showWallpaperFrames(true);
}

std::vector<OptionPanels::Piece> OptionPanels::piecesOf(const char *names) const
{
    std::vector<Piece> pieces;
    for (const QString &name : QString(names).split(' ')) {
        QWidget *widget = board.panelWidgets.find(name);
        QPoint parked(parkedX, widget->y());
        for (const Parked &row : parkedPlaces) {
            if (name == QLatin1String(row.name))
                parked = {row.x, row.y};
        }
        pieces.push_back({widget, widget->pos(), parked});
    }
    return pieces;
}

void OptionPanels::place(const std::vector<Piece> &pieces, bool open)
{
    for (const Piece &piece : pieces) {
        piece.widget->move(open ? piece.working : piece.parked);
        piece.widget->setVisible(open);
        if (open)
            piece.widget->raise();
    }
}

// What takes the keyboard cannot have it while nobody sees it.
void OptionPanels::enableInputs(Panel panel, bool enabled)
{
    const auto enable = [&](const char *name) {
        board.panelWidgets.find(name)->clearFocus();
        board.panelWidgets.find(name)->setEnabled(enabled);
    };
    if (panel == Fonts) {
        enable("fontComboBoxLowercase");
        enable("fontComboBoxUppercase");
    } else if (panel == GamePlay) {
        enable("spinBox27");
    }
}

void OptionPanels::showFrame()
{
    if (advancedOptionsOpen)
        return;
    prepare();
    advancedOptionsOpen = true;
    wantedOpen = true;
    tableLeaves = false;
    Ui::tambrel &ui = board.ui;
    ui.optionsShield->show();
    raiseFurniture();
    slide({ui.optionsShield, {-4, -316, 1211, 337}, {-4, -75, 1211, 337}, 1000});
    slide({ui.tableOfContents, {1215, 0, 142, 695}, {1070, 0, 142, 695}, 500});
    slide({ui.closeX, {1364, 629, 90, 66}, {890, 629, 90, 66}, 700});
    Sequence::after(arrowsMs, this, [this] { slideIn(); });
    wear(ui.letterOfAlphabet2, "color: white;   font: 10pt 'MS Shell Dlg 2';");
}

// The options may have been closed again in the meantime.
void OptionPanels::slideIn()
{
    if (!wantedOpen)
        return;
    Ui::tambrel &ui = board.ui;
    slide({ui.optionsArrow1, {890, -2, 70, 56}, {890, 4, 70, 56}, 500});
    slide({ui.optionsArrow2, {890, -2, 70, 56}, {890, 74, 70, 56}, 600});
    slide({ui.optionsArrow3, {890, -2, 70, 56}, {890, 144, 70, 56}, 700});
    const auto textIn = [this](int ms, const Slide &row) {
        Sequence::after(ms, this, [this, row] {
            if (wantedOpen)
                slide(row);
        });
    };
    textIn(firstTextMs, {ui.optionsText1, {1215, 214, 180, 23}, {890, 204, 180, 23}, 500});
    textIn(secondTextMs, {ui.optionsText2, {1215, 238, 180, 23}, {890, 228, 180, 23}, 500});
}

void OptionPanels::hideFrame()
{
    prepare();
    wantedOpen = false;
    tableLeaves = true;
    Ui::tambrel &ui = board.ui;
    slide({ui.optionsArrow1, {890, 0, 70, 56}, {890, -72, 70, 56}, 1000});
    slide({ui.optionsArrow2, {890, 74, 70, 56}, {890, -72, 70, 56}, 600});
    slide({ui.optionsArrow3, {890, 144, 70, 56}, {890, -72, 70, 56}, 700});
    Sequence::after(slideOutMs, this, [this] { slideOut(); });
    const auto textOut = [this](int ms, const Slide &row) {
        Sequence::after(ms, this, [this, row] {
            if (!wantedOpen)
                slide(row);
        });
    };
    textOut(firstTextMs, {ui.optionsText1, {890, 214, 180, 23}, {1215, 214, 180, 23}, 500});
    textOut(secondTextMs, {ui.optionsText2, {890, 238, 104, 36}, {1215, 238, 104, 36}, 500});
    wear(ui.letterOfAlphabet2, "color: #6e6e6e;   font: 10pt 'MS Shell Dlg 2';");
    for (const Panel panel : closingOrder)
        hide(panel);
    thumbnails.follow();
    Sequence::after(reopenMs, this, [this] { advancedOptionsOpen = false; });
}

// Unless the options were opened once more in the meantime.
void OptionPanels::slideOut()
{
    if (wantedOpen)
        return;
    Ui::tambrel &ui = board.ui;
    slide({ui.optionsShield, {-4, -8, 1211, 258}, {-4, -266, 1211, 258}, 1000});
    slide({ui.tableOfContents, {1070, 0, 142, 695}, {1215, 0, 142, 695}, 500});
    slide({ui.closeX, {890, 629, 90, 66}, {1364, 629, 90, 99}, 500});
}

// One slide at a time for each widget: a newer one takes over.
void OptionPanels::slide(const Slide &row)
{
    if (QPropertyAnimation *running = slides.value(row.widget))
        running->stop();
    auto *animation = new QPropertyAnimation(row.widget, "geometry", this);
    animation->setDuration(row.ms);
    animation->setStartValue(row.from);
    animation->setEndValue(row.to);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    slides.insert(row.widget, animation);
}

void OptionPanels::show(Panel panel)
{
    prepare();
    PanelState &state = panels[panel];
    if (state.open) {
        hide(panel);
    } else {
        place(state.pieces, true);
        enableInputs(panel, true);
        state.menu->setText("Close");
        state.open = true;
        clearFocusEverywhere();
        state.marker->show();
        if (panel == ColorMadness)
            showWallpaperFrames(true);
        if (panel == KestrixKeyboard)
            fades.startFade();
    }
    for (const Panel other : closingOrder) {
        if (other != panel)
            hide(other);
    }
    if (panel == GamePlay && state.open)
        board.ui.optionsShield->hide();
    thumbnails.follow();
}

void OptionPanels::hide(Panel panel)
{
    PanelState &state = panels[panel];
    if (panel == ColorMadness) {
        if (board.panelWidgets.isChecked("xRayColorMadnessOff")) {
            vitals.xNonVitalsOn_function();
            board.panelWidgets.button("xRayColorMadnessOn")->setChecked(true);
        }
        for (const char *name : {"bridgeTop", "bridgeBottom"})
            board.panelWidgets.button(name)->setChecked(false);
        board.panelWidgets.find("bridge1")->hide();
        board.panelWidgets.find("bridge2")->hide();
        clearFocusEverywhere();
    }
    // A picture panel that closes takes its X-ray with it, or nobody could switch it off.
    if (panel == Photos && board.panelWidgets.isChecked("xRayVision")) {
        vitals.xNonVitalsOnPhotos_function();
        board.panelWidgets.button("xRayVision")->setChecked(false);
    }
    state.menu->setText("Open");
    state.open = false;
    state.marker->hide();
    place(state.pieces, false);
    enableInputs(panel, false);
    if (panel == KestrixKeyboard)
        fades.stopFade();
    if (panel == GamePlay)
        board.ui.optionsShield->show();
}

void OptionPanels::lineHighOptions_function()
{
    prepare();
    lineHighOptionsOpen = !lineHighOptionsOpen;
    place(linePieces, lineHighOptionsOpen);
}

void OptionPanels::showBridge(const char *box, const char *bridge)
{
    prepare();
    board.panelWidgets.find(bridge)->setVisible(board.panelWidgets.isChecked(box));
    board.panelWidgets.find(bridge)->raise();
}

void OptionPanels::bridgeTop_function()
{
    showBridge("bridgeTop", "bridge1");
}

void OptionPanels::bridgeBottom_function()
{
    showBridge("bridgeBottom", "bridge2");
}

// The wallpaper's frame and button stand beside the tabs, and on one of them only.
void OptionPanels::showWallpaperFrames(bool panelOpen)
{
    for (const char *name : {"frameWallpaper", "swapGradient7"}) {
        board.panelWidgets.find(name)->setVisible(panelOpen && selectedTab == wallpaperTab);
        board.panelWidgets.find(name)->raise();
    }
}

void OptionPanels::raiseTabFingers()
{
    prepare();
    board.panelWidgets.find("frameTabShield")->show();
    board.panelWidgets.find("frameTabShield")->raise();
}

void OptionPanels::clearFocusEverywhere()
{
    prepare();
    for (const char *name :
         {"fontComboBoxUppercase", "fontComboBoxLowercase", "spinBox1", "spinBox2", "spinBox3",
          "spinBox4", "spinBox5", "spinBox8", "spinBox27"})
        board.panelWidgets.find(name)->clearFocus();
}

void OptionPanels::lockForGame()
{
    if (prepared)
        hide(KestrixKeyboard);
    board.ui.menuKestrixKeyboard->setEnabled(false);
    wear(board.ui.mustStopGameToAccess,
         "background-color: transparent; font: italic 8pt 'MS Shell Dlg 2'; color:  red;");
}

void OptionPanels::unlockAfterGame()
{
    board.ui.menuKestrixKeyboard->setEnabled(true);
    wear(board.ui.mustStopGameToAccess,
         "background-color: transparent;font: italic 8pt 'MS Shell Dlg 2'; color:  #6e6e6e");
}
