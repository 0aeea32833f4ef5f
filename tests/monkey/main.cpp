// Plays at random and looks for faults; see Player.
//
//     monkey [--seed N] [--acts N] [--without WORD]...    plays, and shortens what went wrong
//     monkey --replay FILE                                does the acts of a file again
//     monkey --evening HOURS                              plays games all along, and tells what the
//                                                         program holds by the hour
//     monkey --shrink FILE                                finds a short list of acts in a file

#include "platform.h"
#include "player.h"
#include "resources.h"
#include "virtualtime.h"

#include <QtWidgets>

namespace {

constexpr int actsOfARun = 2500; // then the program starts afresh
constexpr int actsToRest = 500;
constexpr int mostTrials = 120;
constexpr int shown = 40; // acts, when no short list was found

QStringList without;
QTemporaryDir scratch;

QString scratchFile(const char *name)
{
    return scratch.filePath(name);
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

// ---- a process that plays

int report(const Player &player)
{
    for (const QString &complaint : player.complaints().mid(0, 12))
        printf("FAULT %s\n", qPrintable(complaint));
    fflush(stdout);
    return player.complaints().isEmpty() ? 0 : 3;
}

int replay(const QString &path)
{
    const QStringList acts = linesOf(path);
    Player player(without);
    for (const QString &line : acts)
        player.act(line);
    player.act("settle");
    return report(player);
}

// Each act is on the disk before it is done, as the program may not live to tell.
int playAtRandom(unsigned seed, int acts, const QString &path)
{
    QFile log(path);
    log.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    Player player(without, seed);
    for (int i = 0; i <= acts && player.complaints().isEmpty(); ++i) {
        const QString line = i == 0                             ? QString("seed %1").arg(seed)
                             : i % actsToRest == 0 || i == acts ? QString("settle -")
                                                                : player.anyAct();
        log.write(line.toUtf8() + '\n');
        player.act(line);
    }
    return report(player);
}

int countIn(const char *folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

// Kilobytes that are the process's own.
int residentKb()
{
    QFile status("/proc/self/status");
    status.open(QIODevice::ReadOnly);
    const QString text = QString::fromLatin1(status.readAll());
    return text.section("VmRSS:", 1).section("kB", 0, 0).trimmed().toInt();
}

// Mostly keys at the pace of a good typist, and now and then anything at all.
int spendEvening(unsigned seed, int hours)
{
    constexpr qint64 hour = 3'600'000; // ms
    Player player(without, seed);
    QElapsedTimer clock; // goes by the time of the game
    clock.start();
    QStringList held;
    for (int told = 0; told <= hours && player.complaints().isEmpty();) {
        for (int keys = 0; keys < 8; ++keys) {
            player.act("click start");
            player.act("play 30 200");
        }
        player.act(player.anyAct());
        if (clock.elapsed() < told * hour)
            continue;
        player.act("settle -");
        held << QString("%1 files, %2 threads, %3")
                    .arg(countIn("/proc/self/fd"))
                    .arg(countIn("/proc/self/task"))
                    .arg(player.holdings());
        printf("%d h: %d MiB, %s\n", told, residentKb() / 1024, qPrintable(held.last()));
        fflush(stdout);
        ++told;
    }
    return report(player);
}

// ---- the process that watches

struct Outcome
{
    QStringList faults; // empty: all went well
    QString text;
};

Outcome start(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    QStringList all = arguments;
    for (const QString &word : without)
        all << "--without" << word;
    process.start(QCoreApplication::applicationFilePath(), all);
    process.waitForFinished(-1);
    Outcome outcome;
    outcome.text = QString::fromUtf8(process.readAll());
    for (const QString &line : outcome.text.split('\n')) {
        if (line.startsWith("FAULT ") || line.startsWith("SUMMARY: "))
            outcome.faults << line;
    }
    const bool fine = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!fine && outcome.faults.isEmpty())
        outcome.faults << QString("FAULT crash: exit %1").arg(process.exitCode());
    return outcome;
}

// Faults of one kind differ by the number of the key and by what it wears.
QString kind(QString fault)
{
    static const QRegularExpression digits("[0-9]+|0x[0-9a-f]+");
    return fault.section(" wore ", 0, 0).replace(digits, "#");
}

bool goesWrong(const QStringList &acts, const QString &wanted)
{
    QFile file(scratchFile("trial"));
    file.open(QIODevice::WriteOnly);
    file.write(acts.join('\n').toUtf8() + '\n');
    file.close();
    for (const QString &fault : start({"--replay", file.fileName()}).faults) {
        if (kind(fault) == wanted)
            return true;
    }
    return false;
}

// Leaves out ever smaller pieces as long as the fault stays.
QStringList shrink(QStringList acts, const QString &wanted)
{
    int trials = 0;
    for (int last = 20; last < acts.size(); last *= 5) {
        if (goesWrong(acts.mid(acts.size() - last), wanted)) {
            acts = acts.mid(acts.size() - last);
            break;
        }
    }
    for (int piece = acts.size() / 2; piece > 0 && trials < mostTrials;) {
        bool shorter = false;
        for (int at = 0; at < acts.size() && trials < mostTrials;) {
            const QStringList rest = acts.mid(0, at) + acts.mid(at + piece);
            ++trials;
            if (!rest.isEmpty() && goesWrong(rest, wanted)) {
                acts = rest;
                shorter = true;
            } else {
                at += piece;
            }
        }
        if (piece > 1)
            piece /= 2;
        else if (!shorter)
            break;
    }
    return acts;
}

void tell(const Outcome &outcome, const QStringList &acts)
{
    for (const QString &fault : outcome.faults)
        printf("%s\n", qPrintable(fault));
    const QString wanted = kind(outcome.faults.first());
    if (!goesWrong(acts, wanted)) {
        printf("  It does not happen again. The last acts:\n    %s\n",
               qPrintable(acts.mid(qMax(0, acts.size() - shown)).join("\n    ")));
    } else {
        printf("  after\n    %s\n", qPrintable(shrink(acts, wanted).join("\n    ")));
    }
    fflush(stdout);
}

int watch(unsigned seed, int acts)
{
    printf("seed %u\n", seed);
    fflush(stdout);
    QStringList known;
    QElapsedTimer clock;
    clock.start();
    int done = 0;
    for (; done < acts; done += actsOfARun, ++seed) {
        const QString log = scratchFile("acts");
        const Outcome outcome = start({"--run", log, "--seed", QString::number(seed), "--acts",
                                       QString::number(qMin(actsOfARun, acts - done))});
        if (outcome.faults.isEmpty() || known.contains(kind(outcome.faults.first())))
            continue;
        known << kind(outcome.faults.first());
        printf("\nrun %u\n", seed);
        tell(outcome, linesOf(log));
    }
    printf("%d acts in %lld s, %d kinds of faults\n", done, clock.elapsed() / 1000, known.size());
    return known.isEmpty() ? 0 : 1;
}

} // namespace

// What libraries keep to the end is no fault of the program.
extern "C" const char *__lsan_default_options()
{
    return "suppressions=" KNOWN_LEAKS ":print_suppressions=0";
}

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << argv[i];
    QCommandLineParser parser;
    parser.addOptions({{"seed", "The first run's seed.", "N", "1"},
                       {"acts", "How many acts.", "N", "2500"},
                       {"without", "Leaves out acts and faults with this word.", "WORD"},
                       {"replay", "Does the acts of a file.", "FILE"},
                       {"evening", "Plays games for hours that pass quickly.", "HOURS"},
                       {"shrink", "Shortens the acts of a file.", "FILE"},
                       {"run", "Writes the acts of a single run to a file.", "FILE"}});
    parser.addHelpOption();
    parser.parse(arguments);
    without = parser.values("without");
    const bool plays = parser.isSet("replay") || parser.isSet("run") || parser.isSet("evening");
    const unsigned seed = parser.value("seed").toUInt();
    const int acts = parser.value("acts").toInt();
    if (!plays) {
        const QCoreApplication application(argc, argv);
        parser.process(application);
        if (!parser.isSet("shrink"))
            return watch(seed, acts);
        const QString file = parser.value("shrink");
        const Outcome outcome = start({"--replay", file});
        if (!outcome.faults.isEmpty())
            tell(outcome, linesOf(file));
        return outcome.faults.isEmpty() ? 0 : 1;
    }

    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0");
    VirtualTime::begin();
    Platform::prepare();
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Platform::limitCache();
    loadResources();
    Platform::installFonts();
    if (parser.isSet("evening"))
        return spendEvening(seed, parser.value("evening").toInt());
    return parser.isSet("replay") ? replay(parser.value("replay"))
                                  : playAtRandom(seed, acts, parser.value("run"));
}
