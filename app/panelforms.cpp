#include "panelforms.h"

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
void add(QWidget &parent)
{
    QWidget sheet;
    Form form;
    form.setupUi(&sheet);
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
}

} // namespace

void PanelForms::build(QWidget &parent)
{
    add<Ui::colorMadnessPanel>(parent);
    add<Ui::kestrixKeyboardPanel>(parent);
    add<Ui::fontsPanel>(parent);
    add<Ui::picturesPanel>(parent);
    add<Ui::shadowsPanel>(parent);
    add<Ui::audioPanel>(parent);
    add<Ui::gamePlayPanel>(parent);
    add<Ui::lineHighlightPanel>(parent);
}
