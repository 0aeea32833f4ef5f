#include "nonvitals.h"

#include "displaymodes.h"
#include "furniture.h"
#include "game.h"
#include "tour.h"
#include "ui_tambrel.h"

namespace {

QWidgetList nonVitalsOf(const Ui::tambrel &ui)
{
    return {
        // score board and clock
        ui.scoreboard, ui.labelScoreboard, ui.lcd, ui.correct, ui.incorrect, ui.labelCorrect,
        ui.labelIncorrect, ui.on, ui.off, ui.timer,
        // the steps of the top strip
        ui.circleOne, ui.circleTwo, ui.circleThree, ui.circleFour, ui.Games, ui.Games_2, ui.Games_3,
        ui.startGame, ui.startGame_2, ui.startGame_3, ui.startGame_4, ui.start, ui.stop, ui.soft,
        ui.strict, ui.displaySoft, ui.displayStrict, ui.goldenHighlight, ui.lineHighlight,
        ui.lineHighOptions, ui.backGames, ui.backStart, ui.backDifficulty, ui.backHighlight,
        // selectors and the current game
        ui.gamesVarious, ui.gamesConsonants, ui.gamesNumberLine, ui.gamesAll, ui.pbForwardAll,
        ui.pbForwardVarious, ui.pbForwardConsonants, ui.pbForwardNumberLine, ui.pbReverseAll,
        ui.pbReverseVarious, ui.pbReverseConsonants, ui.pbReverseNumberLine, ui.pbRandomAll,
        ui.pbRandomVarious, ui.pbRandomConsonants, ui.pbRandomNumberLine, ui.shieldConsonants,
        ui.shieldVarious, ui.shieldNumberLine, ui.shieldEverything, ui.shieldStart, ui.gamePlayBg,
        ui.GamePlayLabel, ui.direction, ui.type, ui.typeOfGame, ui.dem1, ui.dem2, ui.dem6,
        // commands and switches; what hides them stays
        ui.options, ui.helpButton, ui.backAnimation, ui.backColorTimer, ui.animation,
        ui.animationOn, ui.animationOff, ui.colorTimer, ui.keyConstant, ui.keyFlash,
        ui.frameKeyShape, ui.keyShape, ui.lettersDisplayed, ui.labelOptions, ui.rcNone,
        ui.rcRussian, ui.rcEnglish, ui.rcBoth, ui.none, ui.russian2, ui.english, ui.both,
        ui.checkNone, ui.checkRussian, ui.checkEnglish, ui.checkBoth, ui.aKeysMap, ui.aKeysMap3,
        ui.aKeysMap4, ui.aKeysMap5, ui.aKeysMapShift, ui.aKeysMapNormal, ui.aKeysMapText,
        // notes, rows and the instructor
        ui.buttonInstructionsLeft, ui.buttonInstructionsRight, ui.labelInstructionsLeft,
        ui.labelInstructionsRight, ui.backInstructor, ui.display2, ui.display3, ui.piclabel1,
        ui.letterOfAlphabet2, ui.row1, ui.row2, ui.row3, ui.row4, ui.row1Hand, ui.row2Hand,
        ui.row3Hand, ui.row4Hand};
}

} // namespace

NonVitals::NonVitals(Furniture &usedFurniture, Game &usedGame, DisplayModes &displayModes,
                     Tour &windowTour)
    : furniture(usedFurniture),
      game(usedGame),
      modes(displayModes),
      tour(windowTour),
      nonVitals(nonVitalsOf(furniture.ui))
{
    QObject::connect(furniture.ui.hideNonVitals, &QPushButton::clicked, furniture.ui.hideNonVitals,
                     [this] { hideNonVitals_function(); });
}

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
    furniture.ui.hideNonVitals->setText(hiddenNow ? "Show" : "Hide");
}

void NonVitals::xNonVitalsOff_function(const QWidgetList &more)
{
    // The tour is over once anything of it has been hidden.
    game.demoFlag = true;
    tour.hideDemo();
    for (QWidget *widget : nonVitals + more) {
        if (!widget->isHidden()) {
            hidden.insert(widget);
            widget->hide();
        }
    }
}

void NonVitals::xNonVitalsOn_function()
{
    // Only one check mark counts, and the wave that a shield stood for is over.
    for (QWidget *own :
         {furniture.ui.checkNone, furniture.ui.checkRussian, furniture.ui.checkEnglish,
          furniture.ui.checkBoth, furniture.ui.shieldConsonants, furniture.ui.shieldVarious,
          furniture.ui.shieldNumberLine, furniture.ui.shieldEverything, furniture.ui.shieldStart})
        hidden.remove(own);
    // A game that began meanwhile has sent the greeting away for good.
    if (furniture.ui.display3->text().isEmpty())
        hidden.remove(furniture.ui.display3);
    for (QWidget *widget : qAsConst(hidden))
        widget->show();
    hidden.clear();
    modes.displayFlags();
    setHidden(false);
}
