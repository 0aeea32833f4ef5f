#pragma once

#include <QObject>
#include <QStringList>

class Announcer;
class MouseTable;
class QWidget;
class SoundPlayer;
struct Board;

// Which sound a key press makes, and which the effect of a located key; lets the player hear
// them by moving over the speakers, and add files. Nothing of it is saved in a theme.
class KeyAudio : public QObject
{
    Q_OBJECT

public:
    KeyAudio(Board &usedBoard, SoundPlayer &soundPlayer, QWidget &window);

    // Once the panels stand in the window.
    void attach(MouseTable &mouse);

    // Takes the sound of the radio button that is checked.
    void audio();
    // A cancelled dialog leaves silence, and forgets the file before; so does a file that is no
    // sound, which the panel says.
    void openAudio_Function();
    void openAudioPulse_Function();
    void applyAudioToPulse_function();
    // What was added for the effects, silence at first.
    const QString &pulseAudio() const { return uploadedPulseAudioList.first(); }

private:
    QStringList choose(const char *refusal);

    Board &board;
    SoundPlayer &player;
    QWidget &window;
    Announcer *announcer;
    QStringList uploadedAudioList;
    QStringList uploadedPulseAudioList;
};
