#include "keyaudio.h"

#include "filechoice.h"
#include "mousetable.h"
#include "optionforms.h"
#include "soundfile.h"
#include "ui_audiopanel.h"
#include "ui_kestrixkeyboardpanel.h"
#include "wardrobe.h"

namespace {

QString pathOf(const char *file)
{
    return QString(":/new/prefix1/%1.wav").arg(file);
}

} // namespace

KeyAudio::KeyAudio(Wardrobe &usedWardrobe, SoundPlayer &soundPlayer, const OptionForms &optionForms,
                   FileChoice &fileChoice, MouseTable &mouse)
    : wardrobe(usedWardrobe),
      player(soundPlayer),
      form(*optionForms.audio),
      effectForm(*optionForms.kestrixKeyboard),
      choice(fileChoice),
      sounds{
          {form.audioTypewriter, form.playTypewriter, "typewriter"},
          {form.audioExplosion, form.playExplosion, "explosion1"},
          {form.audioQuack, form.playQuack, "quack1"},
          {form.audioBark, form.playBark, "bark"},
          {form.audioMeow, form.playMeow, "meow"},
          {form.audioPhoton, form.playPhoton, "photon"},
          {form.audioPhoton2, form.playPhoton2, "photon2"},
          {form.audioWhistle, form.playWhistle, "whistle"},
          {form.audioChime1, form.playChime1, "chime1"},
          {form.audioBubble, form.playBubble, "bubble2"},
          {form.audioMinigun, form.playMinigun, "machineGun2"},
      },
      refusal(*form.keyAudioRefusal),
      effectRefusal(*effectForm.locatedAudioRefusal),
      addedKeyAudio(Sounds::silenceAudio())
{
    const auto onClick = [this](QAbstractButton *button, void (KeyAudio::*slot)()) {
        connect(button, &QAbstractButton::clicked, this, slot);
    };
    const auto onEnter = [&](QWidget *speaker, auto path) {
        mouse.add(speaker, {[this, path] { player.play(path()); }, {}, {}});
    };
    for (const Sound &sound : sounds) {
        onClick(sound.radio, &KeyAudio::audio);
        onEnter(sound.speaker, [path = pathOf(sound.file)] { return path; });
    }
    onClick(form.useUploadedAudio, &KeyAudio::audio);
    onClick(form.audioNone, &KeyAudio::audio);
    onEnter(form.playUploadedAudio, [this] { return addedKeyAudio; });
    onEnter(effectForm.playUploadedAudioPulse, [this] { return wardrobe.sounds.addedAudio; });
    onClick(form.openAudio, &KeyAudio::openAudio_Function);
    onClick(effectForm.openAudioPulse, &KeyAudio::openAudioPulse_Function);
    onClick(effectForm.applyAudioToPulse, &KeyAudio::applyAudioToPulse_function);
    // Two of the moving pictures have always asked for a sound as well.
    for (QWidget *label : {form.openFolderAudio, effectForm.tnAngryE, effectForm.tnBirdsDancing})
        mouse.add(label, {{}, {}, [this] { openAudio_Function(); }});
    mouse.add(effectForm.openFolderAudio_2, {{}, {}, [this] { openAudioPulse_Function(); }});
}

void KeyAudio::audio()
{
    for (const Sound &sound : sounds) {
        if (sound.radio->isChecked())
            wardrobe.sounds.keyAudio = pathOf(sound.file);
    }
    if (form.useUploadedAudio->isChecked())
        wardrobe.sounds.keyAudio = addedKeyAudio;
    if (form.audioNone->isChecked())
        wardrobe.sounds.keyAudio.clear();
}

QString KeyAudio::choose(Refusal &words)
{
    const QString file = choice.files("Audio(*wav)").value(0);
    const bool refused = !file.isEmpty() && !isSound(file);
    words.show(refused);
    return file.isEmpty() || refused ? Sounds::silenceAudio() : file;
}

void KeyAudio::openAudio_Function()
{
    addedKeyAudio = choose(refusal);
    wardrobe.sounds.keyAudio = addedKeyAudio;
    form.useUploadedAudio->setEnabled(true);
    form.useUploadedAudio->setChecked(true);
}

void KeyAudio::openAudioPulse_Function()
{
    wardrobe.sounds.addedAudio = choose(effectRefusal);
    wardrobe.sounds.addedApplies = true;
    effectForm.applyAudioToPulse->setEnabled(true);
    effectForm.applyAudioToPulse->setChecked(true);
}

void KeyAudio::applyAudioToPulse_function()
{
    wardrobe.sounds.addedApplies = effectForm.applyAudioToPulse->isChecked();
}
