#pragma once

#include "alphabetbaranimation.h"
#include "companions.h"
#include "displaymodes.h"
#include "fadeengine.h"
#include "filechoice.h"
#include "furniture.h"
#include "game.h"
#include "gameselection.h"
#include "instructor.h"
#include "judge.h"
#include "keyboardinput.h"
#include "keyfeedback.h"
#include "keyhover.h"
#include "keylocatedeffects.h"
#include "matchboxes.h"
#include "matchsession.h"
#include "mousetable.h"
#include "nonvitals.h"
#include "optionforms.h"
#include "optionsmenu.h"
#include "scoreboard.h"
#include "soundplayer.h"
#include "targethighlights.h"
#include "timers.h"
#include "tour.h"
#include "wardrobe.h"

#include <QMainWindow>
#include <memory>

class OptionRooms;

// The main window and composition root: owns the form and every room, builds them
// in order of need, connects them, and hands them the events it receives. It holds
// no rule of its own.
class tambrel : public QMainWindow
{
    Q_OBJECT

public:
    enum class Start { AtOpeningWindow, Unseen };

    // What lies outside the program; null stands for the sound device and the file dialogs.
    struct Outside
    {
        std::unique_ptr<SoundPlayer> player;
        std::unique_ptr<FileChoice> files;
    };

    // Shows the opening window, not itself; unseen, it shows nothing and is there to be looked
    // at.
    explicit tambrel(QWidget *parent = nullptr, Outside outside = {},
                     Start start = Start::AtOpeningWindow);
    ~tambrel() override;

    // Shows the window in the middle of the desktop and puts the companions away.
    void openTambrel();
    void showOW();
    // The window that stands when this one has been built.
    QWidget &firstWindow() { return companions.opening(); }

    // What the tests and the bench look into.
    Furniture &furniture() { return *furnishing; }
    Wardrobe &wardrobe() { return clothes; }
    Game &game() { return play; }
    // Built bit by bit a moment after the start, or when first asked for.
    OptionRooms &options();
    OptionsMenu &optionsMenu() { return menu; }
    AlphabetBarAnimation &barAnimation() { return animation; }
    MatchSession &matchSession() { return session; }
    KeyFeedback &keyFeedback() { return feedback; }
    FadeEngine &fadeEngine() { return fades; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    // Tab types nothing, but it must reach keyPressEvent like any other key.
    bool focusNextPrevChild(bool next) override;

private:
    void connectRooms();
    void buildOptions();

    std::unique_ptr<Ui::tambrel> ui;
    std::unique_ptr<SoundPlayer> player;
    std::unique_ptr<Furniture> furnishing;
    Wardrobe clothes;
    Game play;
    Timers timers;
    MouseTable mouse;

    std::unique_ptr<FileChoice> files;

    MatchBoxes boxes;
    KeyFeedback feedback;
    KeyHover hover;
    DisplayModes modes;
    Instructor instructor;
    Tour tour;
    TargetHighlights highlights;
    AlphabetBarAnimation animation;
    FadeEngine fades;
    KeyLocatedEffects bursts;
    NonVitals vitals;
    OptionsMenu menu;
    GameSelection selection;
    ScoreBoard scoreBoard;
    MatchSession session;
    Judge judge;
    KeyboardInput input;
    Companions companions;
    OptionForms optionForms;
    std::unique_ptr<OptionRooms> optionRooms; // uses what is above
};
