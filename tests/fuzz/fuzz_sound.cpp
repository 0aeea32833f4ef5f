// A file that the player names as a sound.

#include "fuzz.h"
#include "soundfile.h"

#include <QtEndian>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QString given = Fuzz::scratchFile("given.wav");
    static const QString made = Fuzz::scratchFile("made.wav");
    Fuzz::put(given, Fuzz::bytesOf(data, size));
    const QByteArray plain = plainSound(given);
    Fuzz::must(isSound(given) != plain.isEmpty(), "says of a file what it makes of it");
    if (plain.isEmpty())
        return 0;
    // What the library is handed promises what it holds, and is the same once more.
    const auto number = [&plain](int at) {
        return qFromLittleEndian<quint32>(plain.constData() + at);
    };
    Fuzz::must(number(4) == quint32(plain.size()) - 8, "the size of all");
    Fuzz::must(number(40) == quint32(plain.size()) - 44, "the size of the samples");
    Fuzz::must(quint32(plain.size()) <= size + 44, "no more than was given");
    Fuzz::put(made, plain);
    Fuzz::must(isSound(made) && plainSound(made) == plain, "plain stays plain");
    return 0;
}
