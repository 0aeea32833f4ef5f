#include "soundplayer.h"

#include "soundfile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSoundEffect>
#include <QTemporaryFile>
#include <QUrl>
#include <array>
#include <list>

namespace {

constexpr std::size_t mostPaths = 8;     // files kept loaded
constexpr std::size_t voicesPerPath = 4; // how often one sound can overlap itself

QtMessageHandler nextHandler = nullptr;
bool dropping = false; // for good: the library goes on complaining after the last sound

// The multimedia library complains about a missing sound server through the default
// logging category, which no filter rule can single out. It is not the player's concern.
void dropSoundComplaints(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.startsWith("PulseAudioService:") || text.startsWith("QSoundEffect("))
        return;
    nextHandler(type, context, text);
}

// One file, in the state in which it was first played; mute where it is no sound. What the library
// loads is a copy that nobody else writes to: the file may change between a look at it and that.
class Voice
{
public:
    explicit Voice(const QFileInfo &file)
        : path(file.filePath()), size(file.size()), modified(file.lastModified())
    {
        if (path.startsWith(':')) {
            if (isSound(path))
                load(QUrl("qrc" + path));
            return;
        }
        const QByteArray sound = plainSound(path);
        if (sound.isEmpty() || !copy.open() || copy.write(sound) != sound.size() || !copy.flush())
            return;
        load(QUrl::fromLocalFile(copy.fileName()));
    }

    bool isOf(const QFileInfo &file) const { return path == file.filePath(); }
    bool isStale(const QFileInfo &file) const
    {
        return size != file.size() || modified != file.lastModified();
    }

    void play()
    {
        if (!effects[next])
            return;
        effects[next]->play();
        next = (next + 1) % voicesPerPath;
    }

private:
    void load(const QUrl &url)
    {
        if (!dropping)
            nextHandler = qInstallMessageHandler(dropSoundComplaints);
        dropping = true;
        for (auto &effect : effects) {
            effect = std::make_unique<QSoundEffect>();
            effect->setSource(url);
        }
    }

    QString path;
    qint64 size;
    QDateTime modified;
    QTemporaryFile copy{QDir::temp().filePath("kestrix-typing-XXXXXX.wav")};
    std::array<std::unique_ptr<QSoundEffect>, voicesPerPath> effects;
    std::size_t next = 0;
};

} // namespace

class DeviceSoundPlayer::Voices
{
public:
    void play(const QFileInfo &file)
    {
        const auto known = std::find_if(loaded.begin(), loaded.end(),
                                        [&](const Voice &voice) { return voice.isOf(file); });
        if (known != loaded.end()) {
            if (!known->isStale(file)) {
                known->play();
                return;
            }
            loaded.erase(known);
        } else if (loaded.size() == mostPaths) {
            loaded.pop_front();
        }
        loaded.emplace_back(file).play();
    }

private:
    std::list<Voice> loaded;
};

DeviceSoundPlayer::DeviceSoundPlayer() = default;
DeviceSoundPlayer::~DeviceSoundPlayer() = default;

void DeviceSoundPlayer::play(const QString &path)
{
    // Playing silence is what most key presses ask for; it needs no device.
    if (path.isEmpty() || path == Sounds::silenceAudio())
        return;
    const QFileInfo file(path);
    if (!file.isFile())
        return;
    if (!voices)
        voices = std::make_unique<Voices>();
    voices->play(file);
}
