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
    for (int row = 0; row < int(std::size(supplied)); ++row) {
        connect(widgets.button(supplied[row].radio), &QAbstractButton::clicked, this,
                [this, row] { chooseGif(row); });
        mouse.add(widgets.find(supplied[row].thumbnail), {{}, {}, [this, row] { chooseGif(row); }});
    }
}

// The state that is selected takes it at once.
void KeyImages::chooseGif(int row)
{
    board.panelWidgets.button(supplied[row].radio)->setChecked(true);
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
    of(state).on = "1";
    takeSupplied(state);
    show(state);
    if (state == Keys)
        feedback.allChangeColorBack();
    if (state == Mouseover && board.panelWidgets.isChecked("radioNone"))
        clearImage_function(state);
}

void KeyImages::takeSupplied(State state)
{
    ImageState &image = of(state);
    for (const Supplied &row : supplied) {
        if (!board.panelWidgets.isChecked(row.radio))
            continue;
        image.path = QString(":/new/prefix1/%1.gif").arg(row.gif);
        image.width = row.size.width();
        image.height = row.size.height();
    }
    openMovie(image.movie, image.path, QSize(image.width, image.height));
}

// Only the pictures at rest reach the keys at once; the others come with their state.
void KeyImages::show(State state)
{
    ImageState &image = of(state);
    auto *sample = board.panelWidgets.find<QLabel>(QString("display") + names[state]);
    sample->setMovie(&image.movie);
    if (state == Keys) {
        for (QLabel *label : qAsConst(board.widgets.keyImgList))
            label->setMovie(&image.movie);
        for (QLabel *label : qAsConst(board.widgets.keyImgList))
            label->show();
    }
    image.movie.start();
}

void KeyImages::clearImage_function(State state)
{
    ImageState &image = of(state);
    image.path.clear();
    image.movie.stop();
    if (state == Highlight)
        highlights.goldHighOff();
    image.on = "0";
    switch (state) {
    case Keys:
        for (QLabel *label : qAsConst(board.widgets.keyImgList))
            label->hide();
        break;
    case Mouseover:
        board.panelWidgets.find<QLabel>("displayMouseover")->clear();
        break;
    case Highlight:
        if (board.game.goldHighFlag)
            highlights.goldHighOn();
        if (!board.game.gameRunning)
            restoreHighlighted();
        break;
    case Keypress:
        break;
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
        if (state == Highlight && board.game.goldHighFlag)
            highlights.goldHighOn();
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
    openMovie(image.sizeMovie, path);
    image.sizeMovie.jumpToFrame(0);
    const QSize size = image.sizeMovie.currentImage().scaledToWidth(keyWidth).size();
    image.width = size.width();
    image.height = size.height();
    openMovie(image.movie, path, size);
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
