#include "tambrel.h"

#include "panelforms.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QCloseEvent>
#include <QScreen>

namespace {

// The form must stand before the board takes its widgets.
std::unique_ptr<Ui::tambrel> buildForm(QMainWindow &window)
{
    auto form = std::make_unique<Ui::tambrel>();
    form->setupUi(&window);
    form->table->setRowCount(100); // Designer would write a line for each empty row
    window.setFixedSize(window.width(), window.height());
    return form;
}

struct SilentPlayer : SoundPlayer
{
    void play(const QString &) override {}
};

// The window as every start finds it, whatever has become of this one.
std::unique_ptr<QWidget> unseenWindow()
{
    return std::make_unique<tambrel>(nullptr, std::make_unique<SilentPlayer>(),
                                     tambrel::Start::Unseen);
}

} // namespace

tambrel::tambrel(QWidget *parent, std::unique_ptr<SoundPlayer> soundPlayer, Start start)
    : QMainWindow(parent),
      ui(buildForm(*this)),
      player(soundPlayer ? std::move(soundPlayer) : std::make_unique<DeviceSoundPlayer>()),
      pieces(std::make_unique<Board>(*ui)),
      timers(*this),
      mouse(*this),
      boxes(*pieces),
      feedback(*pieces, *player),
      modes(*pieces, feedback),
      instructor(*pieces, timers),
      tour(*pieces),
      highlights(*pieces, instructor),
      dresser(*pieces, feedback, boxes, instructor, highlights),
      gradients(*pieces, dresser),
      pickers(*pieces, gradients, dresser, *this),
      paint(*pieces, feedback, gradients, dresser, pickers, mouse),
      fonts(*pieces, dresser, boxes),
      shadows(*pieces, gradients, dresser),
      audio(*pieces, *player, *this),
      images(*pieces, feedback, highlights, *this),
      wallpaper(*pieces, dresser, *this),
      gamePlay(*pieces, gradients, dresser, timers),
      animation(*pieces, feedback),
      fades(*pieces, timers),
      effects(*pieces, *player, audio, instructor, *this),
      vitals(*pieces, *this, modes, tour),
      panels(*pieces, *this, vitals, fades, mouse, [this] { buildPanels(); }),
      paintTheme(*pieces, gradients, dresser, shadows, themeState, *this),
      keyboardTheme(*pieces, gradients, dresser, shadows, themeState),
      themes(*pieces, gradients, dresser),
      selection(*pieces, feedback, animation),
      scoreBoard(*pieces, timers),
      session(*pieces, scoreBoard, boxes, modes, animation, instructor),
      judge(*pieces, feedback, session, scoreBoard, boxes, instructor),
      input(*pieces, feedback, boxes, judge),
      companions(*this, unseenWindow)
{
    setWindowIcon(QIcon(":/new/prefix1/english.gif"));
    modes.addMouseRows(mouse);
    session.addMouseRows(mouse);
    connectRooms();

    modes.displayBoth();
    feedback.dressOtherKeys();
    instructor.set_dem_StyleSheet();
    if (start == Start::AtOpeningWindow)
        companions.showOpening();
}

tambrel::~tambrel() = default;

// The rooms of the panels find their controls once these stand.
void tambrel::buildPanels()
{
    PanelForms::build(*ui->centralWidget);
    pieces->panelWidgets.fill(*this);
    gradients.attach(mouse);
    pickers.attach(mouse);
    paint.attach(mouse);
    fonts.attach();
    shadows.attach(mouse);
    audio.attach(mouse);
    images.attach(mouse);
    wallpaper.attach(mouse);
    gamePlay.attach();
    paintTheme.attach();
    keyboardTheme.attach(*this);
    themes.attach(mouse);
    effects.attach(mouse);
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
    connect(&panels, &OptionPanels::linesLowered, &highlights,
            &TargetHighlights::lineHighlightLower);
    connect(&panels, &OptionPanels::linesRaised, &highlights,
            &TargetHighlights::lineHighlightRaise);
    connect(&session, &MatchSession::started, &panels, &OptionPanels::lockForGame);
    connect(&session, &MatchSession::stopped, &panels, &OptionPanels::unlockAfterGame);
    connect(&session, &MatchSession::stopped, &highlights, &TargetHighlights::endOfGame);

    connect(&animation, &AlphabetBarAnimation::shapeChanged, this, [this] { dresser.all(); });
    connect(&pickers, &ColorPickers::shadowColored, &shadows, &Shadows::setColor);
    connect(&pickers, &ColorPickers::closed, &panels, &OptionPanels::clearFocusEverywhere);
    connect(&feedback, &KeyFeedback::lit, &highlights, &TargetHighlights::keyGoldHigh);
    connect(&feedback, &KeyFeedback::putBack, &highlights, &TargetHighlights::restore);
    connect(&judge, &Judge::bursting, &effects, &KeyLocatedEffects::locatedKey);
    connect(&judge, &Judge::finished, &effects, &KeyLocatedEffects::gameEnded);
    connect(&session, &MatchSession::clearing, &effects, &KeyLocatedEffects::explosionOff);
    connect(&session, &MatchSession::clearing, &fades, &FadeEngine::bringBack);
    connect(&session, &MatchSession::stopping, &effects, &KeyLocatedEffects::explosionOff);
    connect(&effects, &KeyLocatedEffects::chosen, &fades, &FadeEngine::bringBack);
    connect(&effects, &KeyLocatedEffects::returned, &highlights, &TargetHighlights::restore);
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
    pickers.closeOther();
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
        panels.clearFocusEverywhere();
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
