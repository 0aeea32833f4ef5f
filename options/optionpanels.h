#pragma once

#include <QObject>
#include <QPoint>
#include <QWidgetList>
#include <array>
#include <vector>

class EffectChoice;
class MouseTable;
class NonVitals;
class OptionForms;
class QAbstractButton;
class QLabel;
class QPushButton;
class QWidget;
class Thumbnails;
struct Furniture;

// The panels that the Advanced Options open, one at a time; and the tabs, bridges and X-rays
// among them. A panel that is not open is hidden and parked outside the window.
class OptionPanels : public QObject
{
    Q_OBJECT

public:
    // In the order of the table of contents.
    enum Panel {
        ColorMadness,
        KestrixKeyboard,
        Fonts,
        Photos,
        Shadows,
        Audio,
        GamePlay,
        panelCount
    };

    OptionPanels(Furniture &usedFurniture, const OptionForms &optionForms, NonVitals &nonVitals,
                 EffectChoice &effectChoice, Thumbnails &movingThumbnails, MouseTable &mouse);

    // Opens the panel, or closes it if it is open; closes all others either way.
    void show(Panel panel);
    void hide(Panel panel);
    void hideAll();

    // The frame of the Lines is no panel of the table of contents: it opens by its own button.
    void lineHighOptions_function();

    void bridgeTop_function();
    void bridgeBottom_function();
    void showTab(int number); // 1 to 10
    // Keys belong to the game again.
    void clearFocusEverywhere();

signals:
    void linesLowered(); // the sample with the lines under the keys was pressed
    void linesRaised();

private:
    static constexpr int tabCount = 10;

    // At rest at its place in the form, or parked outside.
    struct Piece
    {
        QWidget *widget;
        QPoint parked;
        QPoint working;
    };
    using Pieces = std::vector<Piece>;
    struct PanelState
    {
        QPushButton *menu;
        QLabel *marker;
        Pieces pieces;
        QWidgetList inputs = {}; // what takes the keyboard, and must not while nobody sees it
        bool open = false;
    };

    static std::array<PanelState, panelCount> panelsOf(const Furniture &furniture,
                                                       const OptionForms &forms);
    static Piece piece(QWidget *widget);
    static Piece piece(QWidget *widget, QPoint parked);
    void connectPieces(MouseTable &mouse);
    void addTabRow(int number, MouseTable &mouse);
    void place(const Pieces &pieces, bool open);
    void enableInputs(Panel panel, bool enabled);
    void showBridge(const QAbstractButton *box, QWidget *bridge);
    void showWallpaperFrames(bool panelOpen);
    QWidget *tabLabel(int number) const { return tabLabels[static_cast<size_t>(number - 1)]; }

    Furniture &furniture;
    const OptionForms &forms;
    NonVitals &vitals;
    EffectChoice &effects;
    Thumbnails &thumbnails;
    std::array<PanelState, panelCount> panels; // by Panel
    const Pieces linePieces;
    const std::array<QWidget *, tabCount> tabLabels;
    bool lineHighOptionsOpen = false;
    int selectedTab = 1;
};
