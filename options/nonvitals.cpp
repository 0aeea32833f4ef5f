#include "nonvitals.h"

#include "board.h"
#include "displaymodes.h"
#include "tour.h"
#include "ui_tambrel.h"
#include "widgetsbyname.h"

#include <QStringList>

namespace {

enum Group {
    Always = 1,   // the button, and both X-rays
    Options = 2,  // what the Advanced Options lay over the window
    Madness = 4,  // the panel Color Madness itself
    Pictures = 8, // the panel Pictures itself
};

struct NonVital
{
    int group;
    const char *names; // objectNames
};

constexpr NonVital nonVitals[] = {
    // score board and clock
    {Always,
     "scoreboard labelScoreboard lcd correct incorrect labelCorrect labelIncorrect on off timer"},
    // the steps of the top strip
    {Always, "circleOne circleTwo circleThree circleFour Games Games_2 Games_3 "
             "startGame startGame_2 startGame_3 startGame_4 start stop soft strict displaySoft "
             "displayStrict goldenHighlight lineHighlight lineHighOptions frameLinehighlight "
             "swapGradient6 backGames backStart backDifficulty backHighlight"},
    // selectors and the current game
    {Always,
     "gamesVarious gamesConsonants gamesNumberLine gamesAll pbForwardAll pbForwardVarious "
     "pbForwardConsonants pbForwardNumberLine pbReverseAll pbReverseVarious pbReverseConsonants "
     "pbReverseNumberLine pbRandomAll pbRandomVarious pbRandomConsonants pbRandomNumberLine "
     "shieldConsonants shieldVarious shieldNumberLine shieldEverything shieldStart gamePlayBg "
     "GamePlayLabel direction type typeOfGame dem1 dem2 dem6"},
    // commands and switches; what hides them stays
    {Always, "options helpButton backAnimation backColorTimer animation animationOn animationOff "
             "colorTimer keyConstant keyFlash frameKeyShape keyShape lettersDisplayed labelOptions "
             "rcNone rcRussian rcEnglish rcBoth none russian2 english both checkNone checkRussian "
             "checkEnglish checkBoth aKeysMap aKeysMap3 "
             "aKeysMap4 aKeysMap5 aKeysMapShift aKeysMapNormal aKeysMapText"},
    // notes, rows and the instructor
    {Always, "buttonInstructionsLeft buttonInstructionsRight labelInstructionsLeft "
             "labelInstructionsRight backInstructor display2 display3 piclabel1 letterOfAlphabet2 "
             "row1 row2 row3 row4 row1Hand row2Hand row3Hand row4Hand"},
    {Options, "optionsShield optionsArrow1 optionsArrow2 optionsArrow3 optionsText1 optionsText2"},
    {Madness, "tabWidget frameTabShield frameWallpaper swapGradient7"},
    {Pictures, "framePhotos openImageKeys clearKeysImage openImageKeypress clearKeypressImage "
               "openImageHighlight clearHighlightImage openImageMouseover clearMouseoverImage"},
};

} // namespace

NonVitals::NonVitals(Board &usedBoard, QWidget &mainWindow, DisplayModes &displayModes,
                     Tour &windowTour)
    : board(usedBoard), window(mainWindow), modes(displayModes), tour(windowTour)
{}

void NonVitals::hideNonVitals_function()
{
    if (nonVitalsHidden) {
        xNonVitalsOn_function();
    } else {
        xNonVitalsOff_function();
        setHidden(true);
    }
}

void NonVitals::setHidden(bool hiddenNow)
{
    nonVitalsHidden = hiddenNow;
    board.ui.hideNonVitals->setText(hiddenNow ? "Show" : "Hide");
}

void NonVitals::xNonVitalsOff_function()
{
    hide(Always);
}

void NonVitals::xNonVitalsOff2_function()
{
    hide(Always | Options | Madness);
}

void NonVitals::xNonVitalsOffPhotos_function()
{
    hide(Always | Options | Pictures);
}

void NonVitals::hide(int groups)
{
    // The tour is over once anything of it has been hidden.
    board.game.demoFlag = true;
    tour.hideDemo();
    const auto widgets = widgetsByName<QWidget>(window);
    for (const NonVital &row : nonVitals) {
        if (!(row.group & groups))
            continue;
        for (const QString &name : QString(row.names).split(' ')) {
            QWidget *widget = widgets.value(name);
            if (widget && !widget->isHidden()) {
                hidden.insert(widget);
                widget->hide();
            }
        }
    }
}

void NonVitals::xNonVitalsOn_function()
{
    // Only one check mark counts, and the wave that a shield stood for is over.
    for (QWidget *own :
         {board.ui.checkNone, board.ui.checkRussian, board.ui.checkEnglish, board.ui.checkBoth,
          board.ui.shieldConsonants, board.ui.shieldVarious, board.ui.shieldNumberLine,
          board.ui.shieldEverything, board.ui.shieldStart})
        hidden.remove(own);
    // A game that began meanwhile has sent the greeting away for good.
    if (board.ui.display3->text().isEmpty())
        hidden.remove(board.ui.display3);
    for (QWidget *widget : qAsConst(hidden))
        widget->show();
    hidden.clear();
    modes.displayFlags();
    setHidden(false);
}
