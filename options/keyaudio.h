#pragma once

#include "refusal.h"

#include <QObject>
#include <QString>
#include <vector>

class FileChoice;
class MouseTable;
class OptionForms;
class QAbstractButton;
class QLabel;
class QWidget;
class SoundPlayer;
struct Wardrobe;

namespace Ui {
class audioPanel;
class kestrixKeyboardPanel;
} // namespace Ui

// Which sound a key press makes, and which the effect of a located key; lets the player hear
// them by moving over the speakers, and add files. Nothing of it is saved in a theme.
class KeyAudio : public QObject
{
    Q_OBJECT

public:
    KeyAudio(Wardrobe &usedWardrobe, SoundPlayer &soundPlayer, const OptionForms &optionForms,
             FileChoice &fileChoice, MouseTable &mouse);

    // Takes the sound of the radio button that is checked.
    void audio();
    // A cancelled dialog leaves silence, and forgets the file before; so does a file that is no
    // sound, which the panel says.
    void openAudio_Function();
    void openAudioPulse_Function();
    void applyAudioToPulse_function();

private:
    struct Sound
    {
        QAbstractButton *radio;
        QWidget *speaker;
        const char *file;
    };

    // Silence where the dialog was cancelled or the file is no sound, which the label says.
    QString choose(Refusal &words);

    Wardrobe &wardrobe;
    SoundPlayer &player;
    const Ui::audioPanel &form;
    const Ui::kestrixKeyboardPanel &effectForm;
    FileChoice &choice;
    const std::vector<Sound> sounds;
    Refusal refusal;
    Refusal effectRefusal;
    QString addedKeyAudio;
};
