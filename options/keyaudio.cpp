#include "keyaudio.h"

#include "announcer.h"
#include "board.h"
#include "filechoice.h"
#include "mousetable.h"
#include "soundfile.h"

#include <QLabel>

namespace {

struct Sound
{
    const char *radio;
    const char *speaker;
    const char *file;
};

constexpr Sound sounds[] = {
    {"audioTypewriter", "playTypewriter", "typewriter"},
    {"audioExplosion", "playExplosion", "explosion1"},
    {"audioQuack", "playQuack", "quack1"},
    {"audioBark", "playBark", "bark"},
    {"audioMeow", "playMeow", "meow"},
    {"audioPhoton", "playPhoton", "photon"},
    {"audioPhoton2", "playPhoton2", "photon2"},
    {"audioWhistle", "playWhistle", "whistle"},
    {"audioChime1", "playChime1", "chime1"},
    {"audioBubble", "playBubble", "bubble2"},
    {"audioMinigun", "playMinigun", "machineGun2"},
};

QString pathOf(const char *file)
{
    return QString(":/new/prefix1/%1.wav").arg(file);
}

} // namespace

KeyAudio::KeyAudio(Board &usedBoard, SoundPlayer &soundPlayer, QWidget &mainWindow)
    : board(usedBoard),
      player(soundPlayer),
      window(mainWindow),
      announcer(new Announcer(&mainWindow)),
      uploadedAudioList(Sounds::silenceAudio()),
      uploadedPulseAudioList(Sounds::silenceAudio())
{}

void KeyAudio::attach(MouseTable &mouse)
{
    const PanelWidgets &widgets = board.panelWidgets;
    const auto onClick = [&](const char *name, void (KeyAudio::*slot)()) {
        connect(widgets.button(name), &QAbstractButton::clicked, this, slot);
    };
    const auto onEnter = [&](const char *speaker, auto path) {
        mouse.add(widgets.find(speaker), {[this, path] { player.play(path()); }, {}, {}});
    };
    for (const Sound &sound : sounds) {
        onClick(sound.radio, &KeyAudio::audio);
        onEnter(sound.speaker, [path = pathOf(sound.file)] { return path; });
    }
    onClick("useUploadedAudio", &KeyAudio::audio);
    onClick("audioNone", &KeyAudio::audio);
    onEnter("playUploadedAudio", [this] { return uploadedAudioList.first(); });
    onEnter("playUploadedAudioPulse", [this] { return uploadedPulseAudioList.first(); });
    onClick("openAudio", &KeyAudio::openAudio_Function);
    onClick("openAudioPulse", &KeyAudio::openAudioPulse_Function);
    onClick("applyAudioToPulse", &KeyAudio::applyAudioToPulse_function);
    // Two of the moving pictures ask for a sound as well, which is wanted.
    for (const char *label : {"openFolderAudio", "tnAngryE", "tnBirdsDancing"})
        mouse.add(widgets.find(label), {{}, {}, [this] { openAudio_Function(); }});
    mouse.add(widgets.find("openFolderAudio_2"), {{}, {}, [this] { openAudioPulse_Function(); }});
}

void KeyAudio::audio()
{
    const PanelWidgets &widgets = board.panelWidgets;
    for (const Sound &sound : sounds) {
        if (widgets.isChecked(sound.radio))
            board.sounds.keyAudio = pathOf(sound.file);
    }
    if (widgets.isChecked("useUploadedAudio"))
        board.sounds.keyAudio = uploadedAudioList.first();
    if (widgets.isChecked("audioNone"))
        board.sounds.keyAudio.clear();
}

QStringList KeyAudio::choose(const char *refusal)
{
    const QStringList files = chooseFiles(window, "Audio(*wav)");
    const bool refused = !files.isEmpty() && !isSound(files.first());
    auto *label = board.panelWidgets.find<QLabel>(refusal);
    label->setVisible(refused);
    if (refused)
        announcer->say(label->text());
    return files.isEmpty() || refused ? QStringList(Sounds::silenceAudio()) : files;
}

void KeyAudio::openAudio_Function()
{
    uploadedAudioList = choose("keyAudioRefusal");
    board.sounds.keyAudio = uploadedAudioList.first();
    QAbstractButton *uploaded = board.panelWidgets.button("useUploadedAudio");
    uploaded->setEnabled(true);
    uploaded->setChecked(true);
}

void KeyAudio::openAudioPulse_Function()
{
    uploadedPulseAudioList = choose("locatedAudioRefusal");
    board.sounds.locatedAudio = uploadedPulseAudioList.first();
    QAbstractButton *apply = board.panelWidgets.button("applyAudioToPulse");
    apply->setEnabled(true);
    apply->setChecked(true);
}

void KeyAudio::applyAudioToPulse_function()
{
    const PanelWidgets &widgets = board.panelWidgets;
    QString &located = board.sounds.locatedAudio;
    if (widgets.isChecked("applyAudioToPulse"))
        located = uploadedPulseAudioList.first();
    else if (widgets.isChecked("explosion"))
        located = pathOf("explosion1");
    else if (widgets.isChecked("angryE"))
        located = pathOf("machineGun2");
    else
        located = Sounds::silenceAudio();
}
