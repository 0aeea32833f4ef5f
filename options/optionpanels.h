#pragma once

#include "thumbnails.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <functional>
#include <vector>

class FadeEngine;
class MouseTable;
class NonVitals;
class QLabel;
class QPropertyAnimation;
class QPushButton;
class QWidget;
struct Board;

// The Advanced Options: a shield with a table of contents that slides in from the
// right, and the panels that it opens, one at a time. A panel that is not open is
// hidden and parked outside the window.
class OptionPanels : public QObject
{
    Q_OBJECT

public:
    // In the order of the table of contents.
    enum Panel { ColorMadness, KestrixKeyboard, Fonts, Photos, Shadows, Audio, GamePlay };

    // buildForms puts the pieces of the panels into the window; it runs once, a moment after
    // the start or when a panel is first needed, since the panels are half of all widgets.
    OptionPanels(Board &usedBoard, QWidget &window, NonVitals &nonVitals, FadeEngine &fadeEngine,
                 MouseTable &mouseTable, std::function<void()> buildForms);

    void prepare();

    void showFrame();
    void hideFrame();

    // Opens the panel, or closes it if it is open; closes all others either way.
    void show(Panel panel);
    void hide(Panel panel);

    // The frame of the Lines is no panel of the table of contents: it opens by its own button.
    void lineHighOptions_function();

    void bridgeTop_function();
    void bridgeBottom_function();
    void showTab(int number); // 1 to 10
    // Brings the tabs' labels forward.
    void raiseTabFingers();
    // Keys belong to the game again.
    void clearFocusEverywhere();

    // The Kestrix Keyboard's button is for the time between games.
    void lockForGame();
    void unlockAfterGame();

signals:
    void linesLowered(); // the sample with the lines under the keys was pressed
    void linesRaised();

private:
    struct Piece
    {
        QWidget *widget;
        QPoint working;
        QPoint parked;
    };
    struct PanelState
    {
        QPushButton *menu;
        QLabel *marker;
        std::vector<Piece> pieces;
        bool open = false;
    };

    void connectPieces();
    void addTabRows();
    std::vector<Piece> piecesOf(const char *names) const;
    void place(const std::vector<Piece> &pieces, bool open);
    void enableInputs(Panel panel, bool enabled);
    void raiseFurniture();
    void slide(const struct Slide &row);
    void slideIn();
    void slideOut();
    void showBridge(const char *box, const char *bridge);
    void showWallpaperFrames(bool panelOpen);
    QString restingTab(int number) const;
    QWidget *tabLabel(int number) const;

    Board &board;
    NonVitals &vitals;
    FadeEngine &fades;
    MouseTable &mouse;
    QWidget &window;
    std::function<void()> buildForms;
    bool prepared = false;
    std::vector<PanelState> panels;
    std::vector<Piece> linePieces;
    QHash<QWidget *, QPointer<QPropertyAnimation>> slides;
    Thumbnails thumbnails;
    bool advancedOptionsOpen = false;
    bool wantedOpen = false;  // what the last click asked for; late slides go by it
    bool tableLeaves = false; // a closing table takes no clicks
    bool lineHighOptionsOpen = false;
    int selectedTab = 1;
};
