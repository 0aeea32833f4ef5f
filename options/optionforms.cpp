#include "optionforms.h"

#include "ui_audiopanel.h"
#include "ui_colormadness.h"
#include "ui_fontspanel.h"
#include "ui_gameplaypanel.h"
#include "ui_kestrixkeyboardpanel.h"
#include "ui_linehighlightpanel.h"
#include "ui_picturespanel.h"
#include "ui_shadowspanel.h"

namespace {

template <class Form>
std::unique_ptr<Form> build(QWidget &parent)
{
    QWidget sheet;
    auto form = std::make_unique<Form>();
    form->setupUi(&sheet);
    // Button groups are children of the sheet too, and must outlive it.
    const QObjectList pieces = sheet.children();
    for (QObject *piece : pieces) {
        if (auto *widget = qobject_cast<QWidget *>(piece)) {
            const QRect place = widget->geometry();
            widget->setParent(&parent);
            widget->setGeometry(place);
            widget->hide();
        } else {
            piece->setParent(&parent);
        }
    }
    return form;
}

} // namespace

// In this order they lie on one another.
OptionForms::OptionForms(QWidget &parent)
    : colorMadness(build<Ui::colorMadnessPanel>(parent)),
      kestrixKeyboard(build<Ui::kestrixKeyboardPanel>(parent)),
      fonts(build<Ui::fontsPanel>(parent)),
      pictures(build<Ui::picturesPanel>(parent)),
      shadows(build<Ui::shadowsPanel>(parent)),
      audio(build<Ui::audioPanel>(parent)),
      gamePlay(build<Ui::gamePlayPanel>(parent)),
      lines(build<Ui::lineHighlightPanel>(parent))
{}

OptionForms::~OptionForms() = default;
