#include "effectchoice.h"

#include "fadeengine.h"
#include "filechoice.h"
#include "game.h"
#include "keylocatedeffects.h"
#include "mousetable.h"
#include "optionforms.h"
#include "picture.h"
#include "sequence.h"
#include "thumbnails.h"
#include "timers.h"
#include "ui_kestrixkeyboardpanel.h"
#include "wardrobe.h"

namespace {

constexpr int previewWidth = 96; // px
constexpr int sampleMs = 5000;

QString gifPath(const char *gif)
{
    return QString(":/new/prefix1/%1.gif").arg(gif);
}

} // namespace

EffectChoice::EffectChoice(Wardrobe &usedWardrobe, Game &usedGame,
                           KeyLocatedEffects &keyLocatedEffects, FadeEngine &fadeEngine,
                           const OptionForms &optionForms, FileChoice &usedFileChoice,
                           Thumbnails &thumbnails, MouseTable &mouse, Timers &windowTimers)
    : wardrobe(usedWardrobe),
      game(usedGame),
      bursts(keyLocatedEffects),
      fades(fadeEngine),
      form(*optionForms.kestrixKeyboard),
      fileChoice(usedFileChoice),
      timers(windowTimers),
      effects{
          {form.explosion, form.tnExplode, true, "explodeAll2", {96, 90}, 300, 300, "explosion1"},
          {form.butterfly, form.tnButterfly, true, "butterfly1", {96, 76}, 100, 200, "silence"},
          {form.birdsdancing,
           form.tnBirdsDancing,
           false,
           "birdsdance2",
           {96, 60},
           100,
           100,
           "silence"},
          {form.angryE, form.tnAngryE, false, "angryEmotion2", {96, 60}, 100, 100, "machineGun2"},
      },
      refusal(*form.finishedGifRefusal)
{
    for (const Row &row : effects) {
        connect(row.radio, &QAbstractButton::clicked, this, [this, &row] { choose(row); });
        thumbnails.add(row.thumbnail, row.gif, row.size, row.thumbnailSpeed);
        if (row.thumbnailChooses)
            mouse.add(row.thumbnail, {{}, {}, [this, &row] { choose(row); }});
    }
    const auto onClick = [this](QAbstractButton *button, void (EffectChoice::*slot)()) {
        connect(button, &QAbstractButton::clicked, this, slot);
    };
    onClick(form.useUploaded, &EffectChoice::finishedUploaded);
    onClick(form.finishedNone, &EffectChoice::clearMovies);
    for (QAbstractButton *fade : {form.fadeOut, form.fadeOutIn})
        onClick(fade, &EffectChoice::clearMovies);
    connect(form.fadeOut, &QAbstractButton::clicked, &fades, &FadeEngine::fadeOut_function);
    connect(form.fadeOutIn, &QAbstractButton::clicked, &fades, &FadeEngine::fadeInOut_function);
    connect(form.effectNone, &QAbstractButton::clicked, &fades, &FadeEngine::clearFade);
    for (QAbstractButton *speed : {form.speed1, form.speed2, form.speed3})
        onClick(speed, &EffectChoice::setMovieSpeed);
    onClick(form.openImageFinished, &EffectChoice::openImageFinished_Function);
    onClick(form.clearKestrexKeyboardImage, &EffectChoice::clearKestrexKeyboardImage_function);
    onClick(form.normalSizeEK, &EffectChoice::showUploaded);
    onClick(form.setToFitEK, &EffectChoice::showUploaded);
    form.tnCurrentImage->setMovie(&preview);
    seen.watch(preview, {form.tnCurrentImage});
}

void EffectChoice::choose(const Row &row)
{
    row.radio->setChecked(true);
    game.clearUserDelay = row.clearUserDelay;
    choose(gifPath(row.gif), row.size, QString(":/new/prefix1/%1.wav").arg(row.sound));
}

void EffectChoice::choose(const QString &path, QSize size, const QString &sound)
{
    bursts.loadKestraxKeyboardGame(path, size, game.clearUserDelay);
    wardrobe.sounds.effectAudio = sound;
    game.kestrixKeyboardOn = true;
    form.effectNone->setChecked(true);
    fades.clearFade();
}

void EffectChoice::finishedUploaded()
{
    choose(uploadedGif.isEmpty() ? gifPath("blank") : uploadedGif, uploadedSize(),
           Sounds::silenceAudio());
}

QSize EffectChoice::uploadedSize() const
{
    return form.normalSizeEK->isChecked() ? QSize() : fitSize;
}

void EffectChoice::clearMovies()
{
    game.kestrixKeyboardOn = false;
    wardrobe.sounds.effectAudio = Sounds::silenceAudio();
    bursts.explosionOff();
    form.finishedNone->setChecked(true);
}

void EffectChoice::openImageFinished_Function()
{
    const QString file = fileChoice.files("Images(*.gif)").value(0);
    refusal.show(!file.isEmpty() && !isPicture(file));
    if (file.isEmpty())
        return;
    uploadedGif = file;
    fitSize = sizeAtWidth(file, previewWidth);
    form.tnCurrentImage->setMovie(&preview);
    showUploaded();
}

void EffectChoice::showUploaded()
{
    if (!uploadedGif.isEmpty()) {
        openMovie(preview, uploadedGif, uploadedSize());
        preview.start();
    }
    if (form.useUploaded->isChecked())
        finishedUploaded();
}

void EffectChoice::clearKestrexKeyboardImage_function()
{
    preview.stop();
    form.tnCurrentImage->clear();
    uploadedGif.clear();
    showUploaded();
}

void EffectChoice::setMovieSpeed()
{
    const int percent = form.speed3->isChecked() ? 300 : form.speed2->isChecked() ? 200 : 100;
    bursts.setMovieSpeed(percent);
    preview.setSpeed(percent);
}

void EffectChoice::startFade()
{
    stopFade();
    fadeTimerId = timers.start(sampleMs, [this] { fadeSample(); });
}

void EffectChoice::stopFade()
{
    timers.stop(fadeTimerId);
}

void EffectChoice::fadeSample()
{
    const auto fade = [this](bool in) {
        for (QWidget *sample : {form.tnFadeExample, form.tnFadeExample_2})
            fades.fade(sample, in);
    };
    fade(false);
    Sequence::after(FadeEngine::comesBackMs, this, [fade] { fade(true); });
}
