#include "tambrel.h"

#include "optionrooms.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QCloseEvent>
#include <QScreen>

namespace {

constexpr int optionsMs = 400;     // the opening window has been painted by then
constexpr int betweenFormsMs = 20; // room for a frame and what the player does

// The form must stand before the board looks for its widgets.
std::unique_ptr<Ui::tambrel> buildForm(QMainWindow &window)
{
    auto form = std::make_unique<Ui::tambrel>();
    form->setupUi(&window);
    form->table->setRowCount(100); // Designer would write a line for each empty row
    window.setFixedSize(window.width(), window.height());
    return form;
}

// The window as every start finds it, whatever has become of this one.
std::unique_ptr<QWidget> unseenWindow()
{
    return std::make_unique<tambrel>(nullptr,
                                     tambrel::Outside{std::make_unique<SilentPlayer>(), nullptr},
                                     tambrel::Start::Unseen);
}

} // namespace

tambrel::tambrel(QWidget *parent, Outside outside, Start start)
    : QMainWindow(parent),
      ui(buildForm(*this)),
      player(outside.player ? std::move(outside.player) : std::make_unique<DeviceSoundPlayer>()),
      furnishing(std::make_unique<Furniture>(*ui)),
      play(*furnishing),
      timers(*this),
      mouse(*this),
      files(outside.files ? std::move(outside.files) : std::make_unique<FileDialogs>(*this)),
      boxes(*furnishing, clothes, play),
      feedback(*furnishing, clothes, play, *player),
      hover(*furnishing, clothes, play, feedback, mouse),
      modes(*furnishing, feedback),
      instructor(*furnishing, clothes, play, timers),
      tour(*furnishing, play),
      highlights(*furnishing, clothes, play, instructor),
      animation(*furnishing, clothes, play, feedback),
      fades(*furnishing, clothes, play),
      bursts(*furnishing, clothes, play, *player, instructor),
      vitals(*furnishing, play, modes, tour),
      menu(*furnishing, [this]() -> OptionPanels & { return options().panels; }),
      selection(*furnishing, play, feedback, animation),
      scoreBoard(*furnishing, play, timers),
      session(*furnishing, clothes, play, scoreBoard, boxes, modes, animation, instructor),
      judge(*furnishing, clothes, play, feedback, session, scoreBoard, boxes, instructor),
      input(*furnishing, play, feedback, boxes, judge),
      companions(*this, unseenWindow),
      optionForms(*ui->centralWidget)
{
    setWindowIcon(QIcon(":/new/prefix1/english.gif"));
    modes.addMouseRows(mouse);
    session.addMouseRows(mouse);
    connectRooms();

    modes.displayBoth();
    feedback.dressOtherKeys();
    instructor.set_dem_StyleSheet();
    Sequence::after(optionsMs, this, [this] { buildOptions(); });
    if (start == Start::AtOpeningWindow)
        companions.showOpening();
}

tambrel::~tambrel() = default;

void tambrel::buildOptions()
{
    if (optionForms.buildNext())
        Sequence::after(betweenFormsMs, this, [this] { buildOptions(); });
    else
        options();
}

OptionRooms &tambrel::options()
{
    if (!optionRooms) {
        while (optionForms.buildNext())
            ;
        const OptionNeeds needs{*furnishing, clothes, play,     *this, mouse, timers,
                                *player,     *files,  feedback, hover, boxes, instructor,
                                highlights,  fades,   bursts,   vitals};
        optionRooms = std::make_unique<OptionRooms>(needs, optionForms);
    }
    return *optionRooms;
}

void tambrel::connectRooms()
{
    connect(ui->pbQuit, &QPushButton::clicked, this, &QWidget::close);
    connect(ui->helpButton, &QPushButton::clicked, this, &tambrel::showOW);
    connect(ui->buttonInstructionsRight, &QPushButton::clicked, &instructor,
            &Instructor::hideInsRight);
    connect(ui->buttonInstructionsLeft, &QPushButton::clicked, &instructor,
            &Instructor::hideInsLeft);
    connect(&companions, &Companions::startClicked, this, &tambrel::openTambrel);

    connect(&selection, &GameSelection::selected, &instructor, &Instructor::set_dem_Text);
    connect(&selection, &GameSelection::selected, &instructor, &Instructor::set_dem_StyleSheet);
    connect(&session, &MatchSession::started, &tour, &Tour::hideDemo);
    connect(&session, &MatchSession::started, &menu, &OptionsMenu::lockForGame);
    connect(&session, &MatchSession::stopped, &menu, &OptionsMenu::unlockAfterGame);
    connect(&session, &MatchSession::stopped, &highlights, &TargetHighlights::endOfGame);

    connect(&animation, &AlphabetBarAnimation::shapeChanged, this,
            [this] { options().dresser.all(); });
    connect(&feedback, &KeyFeedback::lit, &highlights, &TargetHighlights::keyGoldHigh);
    connect(&feedback, &KeyFeedback::putBack, &highlights, &TargetHighlights::restore);
    connect(&judge, &Judge::bursting, &bursts, &KeyLocatedEffects::locatedKey);
    connect(&judge, &Judge::finished, &bursts, &KeyLocatedEffects::gameEnded);
    connect(&session, &MatchSession::clearing, &bursts, &KeyLocatedEffects::explosionOff);
    connect(&session, &MatchSession::clearing, &fades, &FadeEngine::bringBack);
    connect(&session, &MatchSession::stopping, &bursts, &KeyLocatedEffects::explosionOff);
    connect(&bursts, &KeyLocatedEffects::returned, &highlights, &TargetHighlights::restore);
    connect(&judge, &Judge::fading, &fades, &FadeEngine::locatedKey);
    connect(&session, &MatchSession::stopping, &fades, &FadeEngine::gameStopped);
    connect(&judge, &Judge::leaving, &highlights, &TargetHighlights::leaveTarget);
    connect(&judge, &Judge::moved, &highlights, &TargetHighlights::meetTarget);
    connect(&judge, &Judge::randomEnding, &highlights, &TargetHighlights::goldHighOff);
}

void tambrel::openTambrel()
{
    show();
    QRect frame = frameGeometry();
    frame.moveCenter(screen()->availableGeometry().center());
    move(frame.topLeft());
    companions.closeGuides();
    tour.demo();
}

void tambrel::showOW()
{
    companions.showOpening();
}

void tambrel::closeEvent(QCloseEvent *event)
{
    // A companion left open would keep the process alive without a window to come back to.
    companions.closeAll();
    if (optionRooms)
        optionRooms->pickers.closeOther();
    event->accept();
}

void tambrel::keyPressEvent(QKeyEvent *event)
{
    input.pressed(*event);
}

void tambrel::keyReleaseEvent(QKeyEvent *event)
{
    input.released(*event);
}

void tambrel::mousePressEvent(QMouseEvent *event)
{
    // A press beside the number or the font that is being typed gives the keyboard back.
    if (focusWidget())
        options().panels.clearFocusEverywhere();
    mouse.pressed(*this, *event);
}

void tambrel::timerEvent(QTimerEvent *event)
{
    if (!timers.dispatch(*event))
        QMainWindow::timerEvent(event);
}

bool tambrel::eventFilter(QObject *watched, QEvent *event)
{
    mouse.filtered(watched, *event);
    return false;
}

bool tambrel::focusNextPrevChild(bool)
{
    return false;
}
