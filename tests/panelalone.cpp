// Shows a panel of the Advanced Options alone, on an empty sheet instead of the main window.
//
//     panelalone                 the names of the panels
//     panelalone "Pictures"      opens it, to be looked at and used
//     panelalone --drive [FILE]  opens each, uses each of its controls once, and saves pictures as
//                                FILE1.png and so on; what Qt complains of is a failure

#include "displaymodes.h"
#include "fadeengine.h"
#include "filechoice.h"
#include "furniture.h"
#include "game.h"
#include "instructor.h"
#include "keyfeedback.h"
#include "keyhover.h"
#include "keylocatedeffects.h"
#include "matchboxes.h"
#include "mousetable.h"
#include "nonvitals.h"
#include "optionrooms.h"
#include "platform.h"
#include "resources.h"
#include "targethighlights.h"
#include "timers.h"
#include "tour.h"
#include "ui_tambrel.h"
#include "wardrobe.h"

#include <QtWidgets>

namespace {

int complaints = 0;

void countComplaint(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // The offscreen platform lacks what a window manager would do.
    if (message.startsWith("This plugin does not support"))
        return;
    fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++complaints;
}

constexpr const char *names[] = {
    "Color Madness", "Kestrix Keyboard", "Fonts", "Pictures", "Shadows", "Audio", "Game Play"};
static_assert(std::size(names) == OptionPanels::panelCount);

struct NoFile : FileChoice
{
    QStringList files(const QString &) override { return {}; }
    QString toOpen(const QString &) override { return {}; }
    QString toSave(const QString &, const QString &) override { return {}; }
};

// What the panels lie on, and the rooms that they dress, on a form that nobody sees.
class Sheet : public QWidget
{
public:
    Sheet() : furniture(setUp(form, unseen)), game(furniture) { setFixedSize(unseen.size()); }

    void open(OptionPanels::Panel panel) { panels.panels.show(panel); }
    void drive();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        mouse.filtered(watched, *event);
        return false;
    }
    void mousePressEvent(QMouseEvent *event) override { mouse.pressed(*this, *event); }
    void timerEvent(QTimerEvent *event) override { timers.dispatch(*event); }

private:
    static Ui::tambrel &setUp(Ui::tambrel &form, QMainWindow &window)
    {
        form.setupUi(&window);
        return form;
    }

    static const OptionForms &built(OptionForms &forms)
    {
        while (forms.buildNext())
            ;
        return forms;
    }

    QMainWindow unseen;
    Ui::tambrel form;
    Furniture furniture;
    Wardrobe wardrobe;
    Game game;
    MouseTable mouse{*this};
    Timers timers{*this};
    SilentPlayer player;
    NoFile files;
    KeyFeedback feedback{furniture, wardrobe, game, player};
    KeyHover hover{furniture, wardrobe, game, feedback, mouse};
    MatchBoxes boxes{furniture, wardrobe, game};
    DisplayModes modes{furniture, feedback};
    Instructor instructor{furniture, wardrobe, game, timers};
    Tour tour{furniture, game};
    TargetHighlights highlights{furniture, wardrobe, game, instructor};
    FadeEngine fades{furniture, wardrobe, game};
    KeyLocatedEffects bursts{furniture, wardrobe, game, player, instructor};
    NonVitals vitals{furniture, game, modes, tour};
    OptionForms forms{*this};
    OptionRooms panels{{furniture, wardrobe, game, *this, mouse, timers, player, files, feedback,
                        hover, boxes, instructor, highlights, fades, bursts, vitals},
                       built(forms)};
};

void Sheet::drive()
{
    for (auto *button : findChildren<QAbstractButton *>()) {
        if (button->isVisible())
            button->click();
    }
    for (auto *slider : findChildren<QAbstractSlider *>()) {
        if (slider->isVisible())
            slider->setValue(slider->maximum());
    }
    for (auto *label : findChildren<QLabel *>()) {
        if (!label->isVisible())
            continue;
        QMouseEvent press(QEvent::MouseButtonPress, label->mapTo(this, label->rect().center()),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &press);
    }
    panels.pickers.closeOther();
    QCoreApplication::processEvents();
}

int driveAll(Sheet &sheet, const QString &pictures)
{
    qInstallMessageHandler(countComplaint);
    for (int panel = 0; panel < OptionPanels::panelCount; ++panel) {
        sheet.open(static_cast<OptionPanels::Panel>(panel));
        if (!pictures.isEmpty())
            sheet.grab().save(QString("%1%2.png").arg(pictures).arg(panel + 1));
        sheet.drive();
    }
    return complaints == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    Platform::prepare();
    const QApplication application(argc, argv);
    loadResources();
    Platform::installFonts();
    const QStringList arguments = application.arguments().mid(1);
    Sheet sheet;
    if (arguments.value(0) == "--drive") {
        sheet.show();
        return driveAll(sheet, arguments.value(1));
    }
    for (int panel = 0; panel < OptionPanels::panelCount; ++panel) {
        if (arguments.value(0) != QLatin1String(names[panel])) {
            if (arguments.isEmpty())
                printf("%s\n", names[panel]);
            continue;
        }
        sheet.setWindowTitle(names[panel]);
        sheet.show();
        sheet.open(static_cast<OptionPanels::Panel>(panel));
        return QApplication::exec();
    }
    return arguments.isEmpty() ? 0 : 1;
}
