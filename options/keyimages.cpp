#include "keyimages.h"

#include "filechoice.h"
#include "furniture.h"
#include "game.h"
#include "keyfeedback.h"
#include "mousetable.h"
#include "optionforms.h"
#include "picture.h"
#include "targethighlights.h"
#include "thumbnails.h"
#include "ui_picturespanel.h"
#include "wardrobe.h"
#include "wear.h"

#include <QButtonGroup>
#include <QLabel>

namespace {

constexpr const char *blueBorder = "border: 1px solid blue;";
constexpr const char *blackBorder = "border: 1px solid black;";
constexpr int keyWidth = 54; // px

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

KeyImages::KeyImages(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                     KeyFeedback &keyFeedback, TargetHighlights &targetHighlights,
                     const OptionForms &optionForms, FileChoice &fileChoice, Thumbnails &thumbnails,
                     MouseTable &mouse)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      game(usedGame),
      feedback(keyFeedback),
      highlights(targetHighlights),
      form(*optionForms.pictures),
      choice(fileChoice),
      controls{{
          {form.radioKeys, form.openImageKeys, form.clearKeysImage, form.openFolderKeys,
           form.displayKeys, form.radioLineKeys, form.radioLineKeys_2},
          {form.radioKeypress, form.openImageKeypress, form.clearKeypressImage,
           form.openFolderKeypress, form.displayKeypress, form.radioLineKeypress,
           form.radioLineKeypress_2},
          {form.radioHighlight, form.openImageHighlight, form.clearHighlightImage,
           form.openFolderHighlight, form.displayHighlight, form.radioLineHighlight,
           form.radioLineHighlight_2},
          {form.radioMouseover, form.openImageMouseover, form.clearMouseoverImage,
           form.openFolderMouseover, form.displayMouseover, form.radioLineMouseover,
           form.radioLineMouseover_2},
      }},
      supplied{
          {form.radioSwirl, form.tnSwirl1, "swirl1", {54, 54}},
          {form.radioSnowFall, form.tnSnowFall, "snowfall", {54, 54}},
          {form.radioSnow, form.tnSnow, "snowSmall", {}},
          {form.radioSheep, form.tnSheep, "bouncingSheepSmall", {34, 54}},
          {form.radioRain, form.tnRain, "rain", {}},
          {form.radioPulsingLight, form.tnPulsingLight, "pulsingLightSmall", {}},
          {form.radioMarbleTransparent, form.tnMarbleTransparent, "marbleTransparentSmall", {}},
          {form.radioKittyWalk, form.tnKittyWalk, "kittyWalk", {}},
      },
      refusal(*form.keyPicturesRefusal)
{
    for (int i = 0; i < stateCount; ++i) {
        const auto state = static_cast<State>(i);
        const Controls &c = controls[state];
        connect(c.radio, &QAbstractButton::clicked, this, [this, state] { radio_function(state); });
        connect(c.open, &QAbstractButton::clicked, this,
                [this, state] { openImage_Function(state); });
        connect(c.clear, &QAbstractButton::clicked, this,
                [this, state] { clearImage_function(state); });
        for (QWidget *label : {c.folder, static_cast<QWidget *>(c.sample)})
            mouse.add(label, {{}, {}, [this, state] { openImage_Function(state); }});
        seen.watch(of(state).movie, furniture.widgets.keyImgList.toList() << c.sample);
    }
    connect(form.normalSize, &QAbstractButton::clicked, this, &KeyImages::normalSize_function);
    connect(form.setToFit, &QAbstractButton::clicked, this, &KeyImages::setToFit_function);
    connect(form.expandGif, &QAbstractButton::clicked, this, [this] { furniture.widgets.stfOn(); });
    connect(form.normalGif, &QAbstractButton::clicked, this,
            [this] { furniture.widgets.stfOff(); });
    connect(form.checkBox, &QAbstractButton::toggled, this,
            [this](bool on) { wardrobe.images.keypressOverridesHighlight = on; });
    for (const Supplied &row : supplied) {
        connect(row.radio, &QAbstractButton::clicked, this, &KeyImages::giveGif);
        mouse.add(row.thumbnail, {{}, {}, [this, radio = row.radio] {
                                      radio->setChecked(true);
                                      giveGif();
                                  }});
        thumbnails.add(row.thumbnail, row.gif, row.size, 100);
    }
    connect(form.radioNone, &QAbstractButton::clicked, this, &KeyImages::giveGif);
    form.radioKeys->setChecked(true);
}

ImageState &KeyImages::of(State state) const
{
    ImageState *const states[] = {&wardrobe.images.keys, &wardrobe.images.keypress,
                                  &wardrobe.images.highlight, &wardrobe.images.mouseover};
    return *states[state];
}

// The chosen state takes the lit gif at once.
void KeyImages::giveGif()
{
    for (int i = 0; i < stateCount; ++i) {
        if (controls[static_cast<size_t>(i)].radio->isChecked())
            radio_function(static_cast<State>(i));
    }
}

void KeyImages::mark(State state, bool uploaded)
{
    for (const Controls &c : controls) {
        const bool own = &c == &controls[state];
        c.line->setVisible(own && !uploaded);
        c.uploadLine->setVisible(own && uploaded);
        wear(uploaded ? c.uploadLine : c.line, own ? blueBorder : blackBorder);
        wear(c.sample, own ? blueBorder : blackBorder);
    }
}

void KeyImages::radio_function(State state)
{
    refusal.show(false);
    controls[state].radio->setChecked(true);
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
        if (!row.radio->isChecked())
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
    controls[state].sample->setMovie(&image.movie);
    image.movie.start();
    if (state == Keys) {
        for (const ::Keys::Place place : ::Keys::places) {
            QLabel *label = furniture.widgets.image(place);
            label->setMovie(&image.movie);
            label->setVisible(!furniture.presence.isTaken(place));
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
    controls[state].sample->clear();
    for (QLabel *label : qAsConst(furniture.widgets.keyImgList)) {
        if (label->movie() != &image.movie)
            continue;
        label->clear();
        label->hide();
    }
    // What lay below comes up again.
    if (state != Keys && wardrobe.images.keys.isOn())
        feedback.allChangeColorBack();
    if (state == Highlight) {
        highlights.restore();
        if (!game.gameRunning)
            restoreHighlighted();
    }
}

// The key that the highlight of a finished game may have covered: the last of its set.
void KeyImages::restoreHighlighted()
{
    const Keys::Range set = Keys::range(game.choice.keySet());
    if (game.choice.direction() == Direction::Forward)
        feedback.changeColorBack(set.last);
    else if (game.choice.direction() == Direction::Reverse)
        feedback.changeColorBack(set.first);
}

void KeyImages::openImage_Function(State state)
{
    mark(state, true);
    QStringList files = choice.files("Images(*bmp *.gif *.jpg *.png)");
    refusal.show(!files.isEmpty() && !isPicture(files.first()));
    ImageState &image = of(state);
    image.on = files.isEmpty() ? "0" : "1";
    if (files.isEmpty() && (state == Highlight || state == Mouseover))
        files.append(":/new/prefix1/blank.gif");
    if (!files.isEmpty()) {
        takeFile(state, files.first());
        show(state);
    }
    for (const Supplied &row : supplied)
        uncheck(row.radio);
    if (state == Keys)
        form.radioNone->setChecked(true);
}

void KeyImages::takeFile(State state, const QString &path)
{
    ImageState &image = of(state);
    image.path = path;
    const QSize size = sizeAtWidth(path, keyWidth);
    image.width = size.width();
    image.height = size.height();
    openMovie(image.movie, path, form.normalSize->isChecked() ? QSize() : size);
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
