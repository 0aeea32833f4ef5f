#include "optionpanels.h"

#include "effectchoice.h"
#include "furniture.h"
#include "mousetable.h"
#include "nonvitals.h"
#include "optionforms.h"
#include "thumbnails.h"
#include "ui_audiopanel.h"
#include "ui_colormadness.h"
#include "ui_fontspanel.h"
#include "ui_gameplaypanel.h"
#include "ui_kestrixkeyboardpanel.h"
#include "ui_linehighlightpanel.h"
#include "ui_lookpage.h"
#include "ui_picturespanel.h"
#include "ui_shadowspanel.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QGraphicsDropShadowEffect>

namespace {

constexpr int parkedX = 1500; // px, of most pieces, beside their place
constexpr int wallpaperTab = 6;

// In which a panel that opens closes the others.
constexpr OptionPanels::Panel closingOrder[] = {
    OptionPanels::ColorMadness, OptionPanels::Photos,
    OptionPanels::Fonts,        OptionPanels::KestrixKeyboard,
    OptionPanels::Shadows,      OptionPanels::GamePlay,
    OptionPanels::Audio};

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

QString restingTab(int number)
{
    return number % 2 ? tabOddStyle : tabEvenStyle;
}

} // namespace

OptionPanels::Piece OptionPanels::piece(QWidget *widget)
{
    return piece(widget, {parkedX, widget->y()});
}

OptionPanels::Piece OptionPanels::piece(QWidget *widget, QPoint parked)
{
    return {widget, parked, widget->pos()};
}

std::array<OptionPanels::PanelState, OptionPanels::panelCount>
OptionPanels::panelsOf(const Furniture &furniture, const OptionForms &forms)
{
    const Ui::tambrel &ui = furniture.ui;
    const Ui::colorMadnessPanel &c = *forms.colorMadness;
    const Ui::kestrixKeyboardPanel &k = *forms.kestrixKeyboard;
    const Ui::fontsPanel &f = *forms.fonts;
    const Ui::picturesPanel &p = *forms.pictures;
    const Ui::gamePlayPanel &g = *forms.gamePlay;
    std::array<PanelState, panelCount> rows;
    rows[ColorMadness] = {ui.menuColorMadness,
                          ui.markerCm,
                          {piece(c.tabWidget), piece(c.frameTabShield), piece(c.frameXRay),
                           piece(c.frameWallpaper), piece(c.swapGradient7)}};
    rows[KestrixKeyboard] = {ui.menuKestrixKeyboard,
                             ui.markerEk,
                             {piece(k.frameKestrixKeyboard, {parkedX, 305}),
                              piece(k.openImageFinished), piece(k.clearKestrexKeyboardImage),
                              piece(k.openAudioPulse, {parkedX, 115})}};
    rows[Fonts] = {ui.menuFonts,
                   ui.markerFonts,
                   {piece(f.frameFonts, {0, 1500}), piece(f.fontComboBoxLowercase, {308, 1500}),
                    piece(f.fontComboBoxUppercase, {606, 1500})},
                   {f.fontComboBoxLowercase, f.fontComboBoxUppercase}};
    rows[Photos] = {ui.menuPhotos,
                    ui.markerPictures,
                    {piece(p.framePhotos), piece(p.framePhotosMain), piece(p.openImageKeys),
                     piece(p.clearKeysImage), piece(p.openImageKeypress),
                     piece(p.clearKeypressImage), piece(p.openImageHighlight),
                     piece(p.clearHighlightImage), piece(p.openImageMouseover),
                     piece(p.clearMouseoverImage), piece(p.openImageMain), piece(p.clearMainImage),
                     piece(p.xRayVision)}};
    rows[Shadows] = {ui.menuShadows, ui.markerShadows, {piece(forms.shadows->frameShadows)}};
    rows[Audio] = {ui.menuAudio,
                   ui.markerAudio,
                   {piece(forms.audio->frameAudio, {parkedX, 405}),
                    piece(forms.audio->openAudio, {parkedX, 300})}};
    rows[GamePlay] = {ui.menuGamePlay,
                      ui.markerExtra,
                      {piece(g.frameGamePlayS), piece(g.frameGamePlayS_2), piece(g.frameGamePlayCM),
                       piece(g.swapGradient27)},
                      {g.spinBox27}};
    return rows;
}

OptionPanels::OptionPanels(Furniture &usedFurniture, const OptionForms &optionForms,
                           NonVitals &nonVitals, EffectChoice &effectChoice,
                           Thumbnails &movingThumbnails, MouseTable &mouse)
    : furniture(usedFurniture),
      forms(optionForms),
      vitals(nonVitals),
      effects(effectChoice),
      thumbnails(movingThumbnails),
      panels(panelsOf(furniture, forms)),
      linePieces{piece(forms.lines->frameLinehighlight, {parkedX, 0}),
                 piece(forms.lines->swapGradient6, {1464, 103})},
      tabLabels{forms.colorMadness->labelTab1, forms.colorMadness->labelTab2,
                forms.colorMadness->labelTab3, forms.colorMadness->labelTab4,
                forms.colorMadness->labelTab5, forms.colorMadness->labelTab6,
                forms.colorMadness->labelTab7, forms.colorMadness->labelTab8,
                forms.colorMadness->labelTab9, forms.colorMadness->labelTab10}
{
    for (int panel = 0; panel < panelCount; ++panel) {
        place(panels[static_cast<size_t>(panel)].pieces, false);
        enableInputs(static_cast<Panel>(panel), false);
    }
    place(linePieces, false);
    connectPieces(mouse);
    for (int number = 1; number <= tabCount; ++number)
        addTabRow(number, mouse);
    vitals.add({forms.lines->frameLinehighlight, forms.lines->swapGradient6});
    showTab(1);
    showWallpaperFrames(false);
}

void OptionPanels::connectPieces(MouseTable &mouse)
{
    const Ui::colorMadnessPanel &c = *forms.colorMadness;
    const Ui::picturesPanel &p = *forms.pictures;
    const Ui::tambrel &ui = furniture.ui;
    connect(c.bridgeTop, &QAbstractButton::clicked, this, &OptionPanels::bridgeTop_function);
    connect(c.bridgeBottom, &QAbstractButton::clicked, this, &OptionPanels::bridgeBottom_function);
    // An X-ray takes away what the Advanced Options lay over the window, and its own panel.
    const QWidgetList shield{ui.optionsShield, ui.optionsArrow1, ui.optionsArrow2,
                             ui.optionsArrow3, ui.optionsText1,  ui.optionsText2};
    const QWidgetList madness{c.tabWidget, c.frameTabShield, c.frameWallpaper, c.swapGradient7};
    const QWidgetList pictures{p.framePhotos,         p.openImageKeys,      p.clearKeysImage,
                               p.openImageKeypress,   p.clearKeypressImage, p.openImageHighlight,
                               p.clearHighlightImage, p.openImageMouseover, p.clearMouseoverImage};
    connect(c.xRayColorMadnessOn, &QAbstractButton::clicked, this,
            [this] { vitals.xNonVitalsOn_function(); });
    connect(c.xRayColorMadnessOff, &QAbstractButton::clicked, this,
            [this, more = shield + madness] { vitals.xNonVitalsOff_function(more); });
    connect(p.xRayVision, &QAbstractButton::clicked, this,
            [this, more = shield + pictures](bool hides) {
                if (hides)
                    vitals.xNonVitalsOff_function(more);
                else
                    vitals.xNonVitalsOn_function();
            });
    mouse.add(forms.lines->linePosition1Uppercase, {{}, {}, [this] { emit linesLowered(); }});
    mouse.add(forms.lines->linePosition2Uppercase, {{}, {}, [this] { emit linesRaised(); }});
}

// The tabs of Color Madness are labels.
void OptionPanels::addTabRow(int number, MouseTable &mouse)
{
    QWidget *label = tabLabel(number);
    auto *shadow = new QGraphicsDropShadowEffect(this);
    shadow->setOffset(4, 4);
    label->setGraphicsEffect(shadow);
    mouse.add(label, {[this, label, number] {
                          if (number != selectedTab)
                              wear(label, number % 2 ? tabOddHoverStyle : tabEvenHoverStyle);
                      },
                      [this, label, number] {
                          if (number != selectedTab)
                              wear(label, restingTab(number));
                      },
                      [this, number] { showTab(number); }});
}

void OptionPanels::showTab(int number)
{
    selectedTab = number;
    forms.colorMadness->tabWidget->setCurrentIndex(number - 1);
    for (int each = 1; each <= tabCount; ++each)
        wear(tabLabel(each), each == number ? tabSelectedStyle : restingTab(each));
    showWallpaperFrames(true);
}

void OptionPanels::place(const Pieces &pieces, bool open)
{
    for (const Piece &piece : pieces) {
        piece.widget->move(open ? piece.working : piece.parked);
        piece.widget->setVisible(open);
        if (open)
            piece.widget->raise();
    }
}

void OptionPanels::enableInputs(Panel panel, bool enabled)
{
    for (QWidget *input : qAsConst(panels[panel].inputs)) {
        input->clearFocus();
        input->setEnabled(enabled);
    }
}

void OptionPanels::show(Panel panel)
{
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
            effects.startFade();
    }
    for (const Panel other : closingOrder) {
        if (other != panel)
            hide(other);
    }
    if (panel == GamePlay && state.open)
        furniture.ui.optionsShield->hide();
    thumbnails.follow();
}

void OptionPanels::hide(Panel panel)
{
    PanelState &state = panels[panel];
    if (panel == ColorMadness) {
        const Ui::colorMadnessPanel &form = *forms.colorMadness;
        if (form.xRayColorMadnessOff->isChecked()) {
            vitals.xNonVitalsOn_function();
            form.xRayColorMadnessOn->setChecked(true);
        }
        form.bridgeTop->setChecked(false);
        form.bridgeBottom->setChecked(false);
        form.bridge1->hide();
        form.bridge2->hide();
        clearFocusEverywhere();
    }
    // A picture panel that closes takes its X-ray with it, or nobody could switch it off.
    if (panel == Photos && forms.pictures->xRayVision->isChecked()) {
        vitals.xNonVitalsOn_function();
        forms.pictures->xRayVision->setChecked(false);
    }
    state.menu->setText("Open");
    state.open = false;
    state.marker->hide();
    place(state.pieces, false);
    enableInputs(panel, false);
    if (panel == KestrixKeyboard)
        effects.stopFade();
    if (panel == GamePlay)
        furniture.ui.optionsShield->show();
}

void OptionPanels::hideAll()
{
    for (const Panel panel : closingOrder)
        hide(panel);
    thumbnails.follow();
}

void OptionPanels::lineHighOptions_function()
{
    lineHighOptionsOpen = !lineHighOptionsOpen;
    place(linePieces, lineHighOptionsOpen);
}

void OptionPanels::showBridge(const QAbstractButton *box, QWidget *bridge)
{
    bridge->setVisible(box->isChecked());
    bridge->raise();
}

void OptionPanels::bridgeTop_function()
{
    showBridge(forms.colorMadness->bridgeTop, forms.colorMadness->bridge1);
}

void OptionPanels::bridgeBottom_function()
{
    showBridge(forms.colorMadness->bridgeBottom, forms.colorMadness->bridge2);
}

// The wallpaper's frame and button stand beside the tabs, and on one of them only.
void OptionPanels::showWallpaperFrames(bool panelOpen)
{
    const Ui::colorMadnessPanel &form = *forms.colorMadness;
    for (QWidget *widget : {static_cast<QWidget *>(form.frameWallpaper),
                            static_cast<QWidget *>(form.swapGradient7)}) {
        widget->setVisible(panelOpen && selectedTab == wallpaperTab);
        widget->raise();
    }
}

void OptionPanels::clearFocusEverywhere()
{
    const Ui::colorMadnessPanel &form = *forms.colorMadness;
    for (QWidget *input : QWidgetList{
             forms.fonts->fontComboBoxUppercase, forms.fonts->fontComboBoxLowercase,
             forms.keys->spin, forms.keypress->spin, forms.mouseover->spin, forms.highlight->spin,
             form.spinBox5, form.spinBox8, forms.gamePlay->spinBox27})
        input->clearFocus();
}
