#pragma once

#include <QString>
#include <memory>

// Which files sound. An empty path is silent.
struct Sounds
{
    static QString silenceAudio() { return ":/new/prefix1/silence.wav"; }

    QString keyAudio = silenceAudio(); // at a key press

    // With the effect of a located key: its own, or the file that the player has added.
    QString effectAudio = silenceAudio();
    QString addedAudio = silenceAudio();
    bool addedApplies = false;
    const QString &locatedAudio() const { return addedApplies ? addedAudio : effectAudio; }
};

// The one way to make a sound. Tests hand the program a player of their own.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;
    // Never blocks and never fails aloud; the sound may overlap the ones before it.
    virtual void play(const QString &path) = 0;
};

// For a window that is only looked at, and for tests that do not listen.
class SilentPlayer : public SoundPlayer
{
public:
    void play(const QString &) override {}
};

// Plays what isSound() lets pass, in the state the file is in at that moment; anything
// else is silent, as is a machine without a sound device. Opens no device before the
// first sound that can be heard, and keeps a bounded number of voices ever after.
class DeviceSoundPlayer : public SoundPlayer
{
public:
    DeviceSoundPlayer();
    ~DeviceSoundPlayer() override;
    void play(const QString &path) override;

private:
    class Voices;
    std::unique_ptr<Voices> voices;
};
