#include "optionrooms.h"

#include "fadeengine.h"
#include "targethighlights.h"
#include "ui_shadowspanel.h"

OptionRooms::OptionRooms(const OptionNeeds &needs, const OptionForms &builtForms)
    : forms(builtForms),
      dresser(needs.furniture, needs.wardrobe, needs.game, needs.feedback, needs.boxes,
              needs.instructor, needs.highlights, forms),
      gradients(needs.wardrobe, dresser, forms, needs.mouse),
      pickers(needs.furniture, needs.wardrobe, gradients, dresser, forms, needs.mouse,
              needs.window),
      paint(needs.furniture, needs.wardrobe, gradients, dresser, pickers, forms, needs.hover,
            needs.mouse),
      fonts(needs.furniture, needs.wardrobe, dresser, needs.boxes, forms),
      shadows(needs.furniture, needs.wardrobe, gradients, dresser, forms, needs.mouse),
      audio(needs.wardrobe, needs.player, forms, needs.files, needs.mouse),
      images(needs.furniture, needs.wardrobe, needs.game, needs.feedback, needs.highlights, forms,
             needs.files, thumbnails, needs.mouse),
      wallpaper(needs.furniture, needs.wardrobe, dresser, forms, needs.files, needs.mouse),
      gamePlay(needs.furniture, needs.wardrobe, gradients, dresser, forms, needs.timers),
      effects(needs.wardrobe, needs.game, needs.bursts, needs.fades, forms, needs.files, thumbnails,
              needs.mouse, needs.timers),
      panels(needs.furniture, forms, needs.vitals, effects, thumbnails, needs.mouse),
      themeState(*forms.fonts),
      paintTheme(needs.wardrobe, gradients, dresser, shadows, themeState, forms, needs.files),
      keyboardTheme(needs.furniture, needs.wardrobe, gradients, dresser, shadows, themeState, forms,
                    needs.files),
      themes(needs.wardrobe, gradients, dresser, forms, needs.mouse)
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
