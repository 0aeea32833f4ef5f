#include "soundplayer.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>
#include <array>
#include <deque>

namespace {

constexpr qint64 largestFile =
    32 * 1024 * 1024;                    // bytes; minutes of sound, where keys need a second
constexpr std::size_t mostPaths = 8;     // files kept loaded
constexpr std::size_t voicesPerPath = 4; // how often one sound can overlap itself

QtMessageHandler nextHandler = nullptr;
bool dropping = false; // for good: the library goes on complaining after the last sound

// The multimedia library complains about a missing sound server and about files
// that it cannot decode through the default logging category, which no filter rule
// can single out. Neither is the player's concern.
void dropSoundComplaints(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.startsWith("PulseAudioService:") || text.startsWith("QSoundEffect("))
        return;
    nextHandler(type, context, text);
}

// A pipe or a device would block the thread that loads samples, and the program's end with it.
bool isPlayable(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() > 0 && file.size() <= largestFile;
}

} // namespace

class DeviceSoundPlayer::Voices
{
public:
    Voices()
    {
        if (!dropping)
            nextHandler = qInstallMessageHandler(dropSoundComplaints);
        dropping = true;
    }

    void play(const QString &path)
    {
        Voice &voice = voiceOf(path);
        QSoundEffect &effect = *voice.effects[voice.next];
        voice.next = (voice.next + 1) % voicesPerPath;
        effect.play();
    }

private:
    struct Voice
    {
        QString path;
        std::array<std::unique_ptr<QSoundEffect>, voicesPerPath> effects;
        std::size_t next = 0;
    };

    Voice &voiceOf(const QString &path)
    {
        for (Voice &voice : loaded) {
            if (voice.path == path)
                return voice;
        }
        if (loaded.size() == mostPaths)
            loaded.pop_front();
        Voice &voice = loaded.emplace_back();
        voice.path = path;
        for (auto &effect : voice.effects) {
            effect = std::make_unique<QSoundEffect>();
            effect->setSource(path.startsWith(':') ? QUrl("qrc" + path)
                                                   : QUrl::fromLocalFile(path));
        }
        return voice;
    }

    std::deque<Voice> loaded;
};

DeviceSoundPlayer::DeviceSoundPlayer() = default;
DeviceSoundPlayer::~DeviceSoundPlayer() = default;

void DeviceSoundPlayer::play(const QString &path)
{
    // Playing silence is what most key presses ask for; it needs no device.
    if (path.isEmpty() || path == Sounds::silenceAudio() || !isPlayable(path))
        return;
    if (!voices)
        voices = std::make_unique<Voices>();
    voices->play(path);
}
