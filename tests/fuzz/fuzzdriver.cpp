// The interface fuzzer without libFuzzer: replays inputs (the seed corpus, found crashes) and then mutates
// them blindly for a bounded time, under whatever sanitizers the build has. The coverage-guided run is
// scripts/fuzz.sh (libFuzzer, clang).
//
//   tst_fuzzreplay [options] [file or folder ...]
//     no paths             the seed corpus and dictionary beside the sources (QGUI_TEST_SOURCE_DIR)
//     --seconds N          mutate for N seconds after the replay (default QGUI_FUZZ_SECONDS, else 20)
//     --seed N             the mutation's random seed (default QGUI_FUZZ_SEED, else the time; printed)
//     --dict FILE          tokens to insert (libFuzzer's dictionary format)
//     --write-seeds DIR    writes the seed corpus (one input per export, with a widget of its kind) and exits
//     --write-dict FILE    writes the dictionary (every operation's code) and exits
//     --list               prints the operations and their codes
// Before each mutated input runs it is written to fuzz-crash-candidate in the starting folder: when the
// process dies, that file is the input to replay (with QGUI_FUZZ_TRACE=1 to see each call).
#include "interfacefuzzer.h"

#include "app/guiapplication.h"
#include "config/qmltypes.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace {

QString sourceDir()
{
    return qEnvironmentVariable("QGUI_TEST_SOURCE_DIR");
}

QList<QByteArray> readInputs(const QStringList& paths, QStringList* names)
{
    QList<QByteArray> out;
    for (const QString& p : paths) {
        QStringList files;
        if (QFileInfo(p).isDir()) {
            for (const QString& f : QDir(p).entryList(QDir::Files, QDir::Name))
                files << QDir(p).filePath(f);
        } else {
            files << p;
        }
        for (const QString& f : files) {
            QFile file(f);
            if (file.open(QIODevice::ReadOnly)) {
                out << file.readAll();
                *names << f;
            }
        }
    }
    return out;
}

/* The tokens of a dictionary file: lines name="..." with \xNN and \\ escapes. */
QList<QByteArray> readDictionary(const QString& path)
{
    QList<QByteArray> out;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return out;
    const QRegularExpression line(QStringLiteral("^\\s*\\w*\\s*=?\\s*\"(.*)\"\\s*$"));
    while (!f.atEnd()) {
        const QRegularExpressionMatch m = line.match(QString::fromLatin1(f.readLine()));
        if (!m.hasMatch())
            continue;
        const QByteArray esc = m.captured(1).toLatin1();
        QByteArray token;
        for (int i = 0; i < esc.size(); ++i) {
            if (esc[i] == '\\' && i + 3 < esc.size() && esc[i + 1] == 'x') {
                token += char(esc.mid(i + 2, 2).toInt(nullptr, 16));
                i += 3;
            } else if (esc[i] == '\\' && i + 1 < esc.size()) {
                token += esc[++i];
            } else {
                token += esc[i];
            }
        }
        out << token;
    }
    return out;
}

/* One to four random changes of the kind a byte-level fuzzer makes. */
QByteArray mutate(QByteArray in, const QList<QByteArray>& corpus, const QList<QByteArray>& tokens,
    std::mt19937& rng)
{
    auto pick = [&rng](int n) { return n > 0 ? int(rng() % unsigned(n)) : 0; };
    const int changes = 1 + pick(4);
    for (int c = 0; c < changes; ++c) {
        const int at = pick(in.size() + 1);
        switch (pick(7)) {
        case 0: // flip a bit
            if (!in.isEmpty())
                in[at % in.size()] = char(in[at % in.size()] ^ (1 << pick(8)));
            break;
        case 1: // a byte anew
            if (!in.isEmpty())
                in[at % in.size()] = char(rng());
            break;
        case 2: // a selector of a value that breaks things
            if (!in.isEmpty())
                in[at % in.size()] = char(pick(16));
            break;
        case 3: { // insert random bytes
            QByteArray bytes(1 + pick(8), '\0');
            for (char& b : bytes)
                b = char(rng());
            in.insert(at, bytes);
            break;
        }
        case 4: // erase a run
            in.remove(at, 1 + pick(16));
            break;
        case 5: // a token (an operation's code)
            if (!tokens.isEmpty())
                in.insert(at, tokens.at(pick(tokens.size())));
            break;
        default: { // splice: the head of this one, the tail of another
            const QByteArray& other = corpus.at(pick(corpus.size()));
            in = in.left(at) + other.mid(pick(other.size() + 1));
            break;
        }
        }
    }
    return in.left(4096);
}

/* The seed corpus: each creation alone, and each other export after the creation it belongs with (the one
 * whose name shares the longest run of letters with it). */
int writeSeeds(InterfaceFuzzer& fuzzer, const QString& dir)
{
    QDir().mkpath(dir);
    QStringList creators, others;
    for (const QString& line : InterfaceFuzzer::operations()) {
        const QString name = line.section(QLatin1Char(' '), 1);
        (name.startsWith(QLatin1String("View_Create")) ? creators : others) << name;
    }
    auto common = [](const QString& a, const QString& b) {
        int best = 0;
        for (int i = 0; i < a.size(); ++i) {
            for (int j = 0; j < b.size(); ++j) {
                int k = 0;
                while (i + k < a.size() && j + k < b.size() && a[i + k] == b[j + k])
                    ++k;
                best = std::max(best, k);
            }
        }
        return best;
    };
    int written = 0;
    auto write = [&](const QString& name, const QStringList& ops) {
        const QByteArray input = fuzzer.program(ops + QStringList { QStringLiteral("@frame") });
        QFile f(QDir(dir).filePath(name));
        if (!input.isEmpty() && f.open(QIODevice::WriteOnly)) {
            f.write(input);
            ++written;
        }
    };
    for (const QString& c : creators)
        write(c.mid(5), { c });
    for (const QString& o : others) {
        QString with = QStringLiteral("View_CreateText");
        int best = 0;
        for (const QString& c : creators) {
            const int n = common(c.mid(11), o.mid(5));
            if (n > best) {
                best = n;
                with = c;
            }
        }
        write(o.startsWith(QLatin1Char('@')) ? o.mid(1) : o.mid(5), { with, o });
    }
    std::printf("fuzz: %d seeds written to %s\n", written, qPrintable(dir));
    return 0;
}

int writeDictionary(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Text))
        return 1;
    f.write("# The code of every operation of the interface fuzzer (tests/fuzz/tst_fuzzreplay --write-dict).\n");
    for (const QString& line : InterfaceFuzzer::operations()) {
        const QString name = line.section(QLatin1Char(' '), 1);
        const QByteArray code = InterfaceFuzzer::codeOf(name);
        f.write(QStringLiteral("%1=\"\\x%2\\x%3\"\n")
                    .arg(QString(name).remove(QLatin1Char('@')))
                    .arg(uint(uint8_t(code[0])), 2, 16, QLatin1Char('0'))
                    .arg(uint(uint8_t(code[1])), 2, 16, QLatin1Char('0'))
                    .toLatin1());
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    int appArgc = 1;
    GuiApplication app(appArgc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    registerQmlTypes();

    QStringList paths;
    QString dict, seedsDir, dictOut;
    bool list = false;
    int seconds = qEnvironmentVariableIsSet("QGUI_FUZZ_SECONDS") ? qEnvironmentVariableIntValue("QGUI_FUZZ_SECONDS") : 20;
    // ctest fixes the seed (QGUI_FUZZ_SEED): a run finds the same faults until the code changes
    unsigned seed = qEnvironmentVariableIsSet("QGUI_FUZZ_SEED") ? qEnvironmentVariable("QGUI_FUZZ_SEED").toUInt()
                                                                 : unsigned(QDateTime::currentMSecsSinceEpoch());
    for (int i = 1; i < argc; ++i) {
        const QString a = QString::fromLocal8Bit(argv[i]);
        const QString next = i + 1 < argc ? QString::fromLocal8Bit(argv[i + 1]) : QString();
        if (a == QLatin1String("--seconds"))
            seconds = next.toInt(), ++i;
        else if (a == QLatin1String("--seed"))
            seed = next.toUInt(), ++i;
        else if (a == QLatin1String("--dict"))
            dict = next, ++i;
        else if (a == QLatin1String("--write-seeds"))
            seedsDir = QFileInfo(next).absoluteFilePath(), ++i;
        else if (a == QLatin1String("--write-dict"))
            dictOut = QFileInfo(next).absoluteFilePath(), ++i;
        else if (a == QLatin1String("--list"))
            list = true;
        else
            paths << QFileInfo(a).absoluteFilePath();
    }
    if (list) {
        for (const QString& l : InterfaceFuzzer::operations())
            std::printf("%s\n", qPrintable(l));
        return 0;
    }
    if (!dictOut.isEmpty())
        return writeDictionary(dictOut);
    if (paths.isEmpty() && seedsDir.isEmpty()) {
        paths << sourceDir() + QStringLiteral("/tests/fuzz/corpus");
        if (dict.isEmpty())
            dict = sourceDir() + QStringLiteral("/tests/fuzz/interface.dict");
    }
    const QString candidate = QDir::current().absoluteFilePath(QStringLiteral("fuzz-crash-candidate"));

    InterfaceFuzzer fuzzer;
    if (!fuzzer.start()) {
        std::fprintf(stderr, "fuzz: the panel did not start\n");
        return 2;
    }
    if (!seedsDir.isEmpty())
        return writeSeeds(fuzzer, seedsDir);

    QStringList names;
    const QList<QByteArray> corpus = readInputs(paths, &names);
    if (corpus.isEmpty()) {
        std::fprintf(stderr, "fuzz: no inputs in %s\n", qPrintable(paths.join(QLatin1Char(' '))));
        return 2;
    }
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < corpus.size(); ++i) {
        if (qEnvironmentVariableIsSet("QGUI_FUZZ_TRACE"))
            std::fprintf(stderr, "%s\n", qPrintable(names.at(i)));
        fuzzer.run(reinterpret_cast<const uint8_t*>(corpus.at(i).constData()), size_t(corpus.at(i).size()));
    }
    std::printf("fuzz: replayed %d inputs (%lld operations) in %.1f s\n", corpus.size(), fuzzer.operationsRun(),
        clock.elapsed() / 1000.0);
    std::fflush(stdout);

    const QList<QByteArray> tokens = dict.isEmpty() ? QList<QByteArray>() : readDictionary(dict);
    std::mt19937 rng(seed);
    std::printf("fuzz: mutating for %d s, seed %u, %d tokens; a crash leaves its input in %s\n", seconds, seed,
        tokens.size(), qPrintable(candidate));
    std::fflush(stdout);
    const long long opsBefore = fuzzer.operationsRun();
    long long execs = 0;
    clock.restart();
    while (clock.elapsed() < seconds * 1000LL) {
        const QByteArray input = mutate(corpus.at(int(rng() % unsigned(corpus.size()))), corpus, tokens, rng);
        QFile f(candidate);
        if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            f.write(input);
            f.close();
        }
        fuzzer.run(reinterpret_cast<const uint8_t*>(input.constData()), size_t(input.size()));
        ++execs;
    }
    QFile::remove(candidate);
    std::printf("fuzz: %lld mutated inputs (%lld operations) in %.1f s, %.1f inputs/s, 0 faults\n", execs,
        fuzzer.operationsRun() - opsBefore, clock.elapsed() / 1000.0, execs * 1000.0 / std::max<qint64>(1, clock.elapsed()));
    return 0;
}
