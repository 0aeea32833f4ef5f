#include "optionrooms.h"

#include "board.h"
#include "fadeengine.h"
#include "targethighlights.h"
#include "ui_shadowspanel.h"

OptionRooms::OptionRooms(const OptionNeeds &needs, QWidget &parentOfPieces)
    : forms(parentOfPieces),
      dresser(needs.board, needs.feedback, needs.boxes, needs.instructor, needs.highlights, forms),
      gradients(needs.board, dresser, forms, needs.mouse),
      pickers(needs.board, gradients, dresser, forms, needs.mouse, needs.window),
      paint(needs.board, gradients, dresser, pickers, forms, needs.hover, needs.mouse),
      fonts(needs.board, dresser, needs.boxes, forms),
      shadows(needs.board, gradients, dresser, forms, needs.mouse),
      audio(needs.board, needs.player, forms, needs.files, needs.mouse, needs.window),
      images(needs.board, needs.feedback, needs.highlights, forms, needs.files, thumbnails,
             needs.mouse),
      wallpaper(needs.board, dresser, forms, needs.files, needs.mouse),
      gamePlay(needs.board, gradients, dresser, forms, needs.timers),
      effects(needs.board, needs.bursts, needs.fades, forms, needs.files, thumbnails, needs.mouse,
              needs.timers),
      panels(needs.board, forms, needs.vitals, effects, thumbnails, needs.mouse),
      themeState(*forms.fonts),
      paintTheme(needs.board, gradients, dresser, shadows, themeState, forms, needs.files),
      keyboardTheme(needs.board, gradients, dresser, shadows, themeState, forms, needs.files),
      themes(needs.board, gradients, dresser, forms, needs.mouse)
{
    connect(&panels, &OptionPanels::linesLowered, &needs.highlights,
            &TargetHighlights::lineHighlightLower);
    connect(&panels, &OptionPanels::linesRaised, &needs.highlights,
            &TargetHighlights::lineHighlightRaise);
    connect(&pickers, &ColorPickers::shadowColored, &shadows, &Shadows::setColor);
    connect(&pickers, &ColorPickers::closed, &panels, &OptionPanels::clearFocusEverywhere);
    connect(&needs.fades, &FadeEngine::shadowsBack, forms.shadows->shadow3dOn,
            &QAbstractButton::setChecked);
}
