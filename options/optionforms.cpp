#include "optionforms.h"

#include "lookpage.h"
#include "ui_audiopanel.h"
#include "ui_colormadness.h"
#include "ui_fontspanel.h"
#include "ui_gameplaypanel.h"
#include "ui_kestrixkeyboardpanel.h"
#include "ui_linehighlightpanel.h"
#include "ui_lookpage.h"
#include "ui_picturespanel.h"
#include "ui_shadowspanel.h"

namespace {

enum class Pieces { Hidden, AsParent }; // those of a tab come and go with it

template <class Form>
std::unique_ptr<Form> build(QWidget &parent, Pieces pieces = Pieces::Hidden)
{
    QWidget sheet;
    auto form = std::make_unique<Form>();
    form->setupUi(&sheet);
    // Button groups are children of the sheet too, and must outlive it.
    const QObjectList children = sheet.children();
    for (QObject *piece : children) {
        if (auto *widget = qobject_cast<QWidget *>(piece)) {
            const QRect place = widget->geometry();
            widget->setParent(&parent);
            widget->setGeometry(place);
            if (pieces == Pieces::Hidden)
                widget->hide();
        } else {
            piece->setParent(&parent);
        }
    }
    return form;
}

std::unique_ptr<Ui::lookPage> lookPage(QWidget &page, int number)
{
    auto form = build<Ui::lookPage>(page, Pieces::AsParent);
    setUpLookPage(*form, number);
    return form;
}

} // namespace

OptionForms::OptionForms(QWidget &parentOfPieces) : parent(parentOfPieces) {}

OptionForms::~OptionForms() = default;

// In this order they lie on one another.
bool OptionForms::buildNext()
{
    switch (built++) {
    case 0:
        colorMadness = build<Ui::colorMadnessPanel>(parent);
        return true;
    case 1:
        keys = lookPage(*colorMadness->pageKeys, 1);
        keypress = lookPage(*colorMadness->pageKeypress, 2);
        mouseover = lookPage(*colorMadness->pageMouseover, 3);
        highlight = lookPage(*colorMadness->pageHighlight, 4);
        return true;
    case 2:
        kestrixKeyboard = build<Ui::kestrixKeyboardPanel>(parent);
        fonts = build<Ui::fontsPanel>(parent);
        pictures = build<Ui::picturesPanel>(parent);
        shadows = build<Ui::shadowsPanel>(parent);
        return true;
    case 3:
        audio = build<Ui::audioPanel>(parent);
        gamePlay = build<Ui::gamePlayPanel>(parent);
        lines = build<Ui::lineHighlightPanel>(parent);
        return true;
    default:
        return false;
    }
}
