#include "keyimages.h"

#include "board.h"
#include "filechoice.h"
#include "keyfeedback.h"
#include "mousetable.h"
#include "picture.h"
#include "targethighlights.h"
#include "wear.h"

#include <QButtonGroup>
#include <QLabel>

namespace {

constexpr const char *names[] = {"Keys", "Keypress", "Highlight", "Mouseover"};
static_assert(std::size(names) == KeyImages::stateCount);

constexpr const char *blueBorder = "border: 1px solid blue;";
constexpr const char *blackBorder = "border: 1px solid black;";
constexpr int keyWidth = 54; // px

struct Supplied
{
    const char *radio;
    const char *thumbnail;
    const char *gif;
    QSize size; // px; invalid: as it is
};

const Supplied supplied[] = {
    {"radioSwirl", "tnSwirl1", "swirl1", {54, 54}},
    {"radioSnowFall", "tnSnowFall", "snowfall", {54, 54}},
    {"radioSnow", "tnSnow", "snowSmall", {}},
    {"radioSheep", "tnSheep", "bouncingSheepSmall", {34, 54}},
    {"radioRain", "tnRain", "rain", {}},
    {"radioPulsingLight", "tnPulsingLight", "pulsingLightSmall", {}},
    {"radioMarbleTransparent", "tnMarbleTransparent", "marbleTransparentSmall", {}},
    {"radioKittyWalk", "tnKittyWalk", "kittyWalk", {}},
};

// The button of an exclusive group can be unchecked only while the group is not.
void uncheck(QAbstractButton *button)
{
    QButtonGroup *group = button->group();
    if (group)
        group->setExclusive(false);
    button->setChecked(false);
    if (group)
        group->setExclusive(true);
}

} // namespace

KeyImages::KeyImages(Board &usedBoard, KeyFeedback &keyFeedback, TargetHighlights &targetHighlights,
                     QWidget &mainWindow)
    : board(usedBoard), feedback(keyFeedback), highlights(targetHighlights), window(mainWindow)
{}

ImageState &KeyImages::of(State state) const
{
    ImageState *const states[] = {&board.images.keys, &board.images.keypress,
                                  &board.images.highlight, &board.images.mouseover};
    return *states[state];
}

void KeyImages::attach(MouseTable &mouse)
{
    const PanelWidgets &widgets = board.panelWidgets;
    for (int i = 0; i < stateCount; ++i) {
        const auto state = static_cast<State>(i);
        const QString name = names[i];
        connect(widgets.button("radio" + name), &QAbstractButton::clicked, this,
                [this, state] { radio_function(state); });
        connect(widgets.button("openImage" + name), &QAbstractButton::clicked, this,
                [this, state] { openImage_Function(state); });
        connect(widgets.button("clear" + name + "Image"), &QAbstractButton::clicked, this,
                [this, state] { clearImage_function(state); });
        for (const char *label : {"openFolder", "display"})
            mouse.add(widgets.find(label + name),
                      {{}, {}, [this, state] { openImage_Function(state); }});
        seen.watch(of(state).movie, board.widgets.keyImgList.toList()
                                        << widgets.find<QLabel>("display" + name));
    }
    connect(widgets.button("normalSize"), &QAbstractButton::clicked, this,
            &KeyImages::normalSize_function);
    connect(widgets.button("setToFit"), &QAbstractButton::clicked, this,
            &KeyImages::setToFit_function);
    connect(widgets.button("expandGif"), &QAbstractButton::clicked, this,
            [this] { board.widgets.stfOn(); });
    connect(widgets.button("normalGif"), &QAbstractButton::clicked, this,
            [this] { board.widgets.stfOff(); });
    connect(widgets.button("checkBox"), &QAbstractButton::toggled, this,
            [this](bool on) { board.images.keypressOverridesHighlight = on; });
    for (const Supplied &row : supplied) {
        QAbstractButton *radio = widgets.button(row.radio);
        connect(radio, &QAbstractButton::clicked, this, &KeyImages::giveGif);
        mouse.add(widgets.find(row.thumbnail), {{}, {}, [this, radio] {
                                                    radio->setChecked(true);
                                                    giveGif();
                                                }});
    }
    connect(widgets.button("radioNone"), &QAbstractButton::clicked, this, &KeyImages::giveGif);
    widgets.button("radioKeys")->setChecked(true);
}

// The chosen state takes the lit gif at once.
void KeyImages::giveGif()
{
    for (int i = 0; i < stateCount; ++i) {
        if (board.panelWidgets.isChecked(QString("radio") + names[i]))
            radio_function(static_cast<State>(i));
    }
}

void KeyImages::mark(State state, bool uploaded)
{
    const PanelWidgets &widgets = board.panelWidgets;
    for (int i = 0; i < stateCount; ++i) {
        const bool own = i == state;
        QWidget *line = widgets.find(QString("radioLine") + names[i]);
        QWidget *uploadLine = widgets.find(QString("radioLine%1_2").arg(names[i]));
        line->setVisible(own && !uploaded);
        uploadLine->setVisible(own && uploaded);
        wear(uploaded ? uploadLine : line, own ? blueBorder : blackBorder);
        wear(widgets.find(QString("display") + names[i]), own ? blueBorder : blackBorder);
    }
}

void KeyImages::radio_function(State state)
{
    board.panelWidgets.button(QString("radio") + names[state])->setChecked(true);
    mark(state, false);
    clearImage_function(state);
    if (!takeSupplied(state))
        return;
    of(state).on = "1";
    show(state);
}

// False while None is lit.
bool KeyImages::takeSupplied(State state)
{
    ImageState &image = of(state);
    for (const Supplied &row : supplied) {
        if (!board.panelWidgets.isChecked(row.radio))
            continue;
        image.path = QString(":/new/prefix1/%1.gif").arg(row.gif);
        image.width = row.size.width();
        image.height = row.size.height();
        openMovie(image.movie, image.path, row.size);
        return true;
    }
    return false;
}

// The pictures at rest and that of a target in play reach the keys at once; the others come with
// their state.
void KeyImages::show(State state)
{
    ImageState &image = of(state);
    auto *sample = board.panelWidgets.find<QLabel>(QString("display") + names[state]);
    sample->setMovie(&image.movie);
    image.movie.start();
    if (state == Keys) {
        for (int place = 1; place <= ::Keys::pileCount; ++place) {
            QLabel *label = board.widgets.placeImage(place);
            label->setMovie(&image.movie);
            label->setVisible(!board.presence.isTaken(place));
        }
        feedback.allChangeColorBack();
    }
    if (state == Highlight)
        highlights.restore();
}

// Empties the state, its sample and every label that shows its picture.
void KeyImages::clearImage_function(State state)
{
    ImageState &image = of(state);
    image.path.clear();
    image.movie.stop();
    if (state == Highlight)
        highlights.goldHighOff();
    image.on = "0";
    board.panelWidgets.find<QLabel>(QString("display") + names[state])->clear();
    for (QLabel *label : qAsConst(board.widgets.keyImgList)) {
        if (label->movie() != &image.movie)
            continue;
        label->clear();
        label->hide();
    }
    // What lay below comes up again.
    if (state != Keys && board.images.keys.isOn())
        feedback.allChangeColorBack();
    if (state == Highlight) {
        highlights.restore();
        if (!board.game.gameRunning)
            restoreHighlighted();
    }
}

// The key that the highlight of a finished game may have covered: the last of its set.
void KeyImages::restoreHighlighted()
{
    const Keys::Range set = Keys::range(board.choice.keySet());
    if (board.choice.direction() == Direction::Forward)
        feedback.changeColorBack(set.last);
    else if (board.choice.direction() == Direction::Reverse)
        feedback.changeColorBack(set.first);
}

void KeyImages::openImage_Function(State state)
{
    mark(state, true);
    QStringList files = chooseFiles(window, "Images(*bmp *.gif *.jpg *.png)");
    ImageState &image = of(state);
    image.on = files.isEmpty() ? "0" : "1";
    if (files.isEmpty() && (state == Highlight || state == Mouseover))
        files.append(":/new/prefix1/blank.gif");
    if (!files.isEmpty()) {
        takeFile(state, files.first());
        show(state);
    }
    for (const Supplied &row : supplied)
        uncheck(board.panelWidgets.button(row.radio));
    if (state == Keys)
        board.panelWidgets.button("radioNone")->setChecked(true);
}

void KeyImages::takeFile(State state, const QString &path)
{
    ImageState &image = of(state);
    board.panelWidgets.find<QLabel>(QString("display") + names[state])->clear();
    image.path = path;
    const QSize size = sizeAtWidth(path, keyWidth);
    image.width = size.width();
    image.height = size.height();
    openMovie(image.movie, path, board.panelWidgets.isChecked("normalSize") ? QSize() : size);
}

void KeyImages::setSizes(bool fit)
{
    for (int i = 0; i < stateCount; ++i) {
        const auto state = static_cast<State>(i);
        ImageState &image = of(state);
        if (!image.isOn())
            continue;
        openMovie(image.movie, image.path, fit ? QSize(image.width, image.height) : QSize());
        show(state);
    }
}

void KeyImages::normalSize_function()
{
    setSizes(false);
}

void KeyImages::setToFit_function()
{
    setSizes(true);
}
