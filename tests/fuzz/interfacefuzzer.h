#ifndef INTERFACEFUZZER_H
#define INTERFACEFUZZER_H

#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <memory>

class PanelFixture;
class QTemporaryDir;

/**
 * Runs fuzz inputs against the C interface on one panel.
 *
 * An input is a program of up to 64 operations. Each operation is two bytes, little-endian, naming an export
 * (or one of the panel operations "@frame", "@settle", "@click") by a 16-bit hash of its name: the export
 * whose hash is the first at or after the code, so codes stay meaningful when exports are added. The
 * export's arguments follow, read by FuzzInput (records filled field by field, ids from a pool of made,
 * deleted and random ids). After the program every widget is deleted and the registry must be empty; a
 * plain creation must then work. A broken rule aborts the process, which the fuzzer reports as a crash.
 * Each input starts on a fresh registry in the same scene: desktop 1 with window 1 shown, 800 x 480.
 */
class InterfaceFuzzer {
public:
    InterfaceFuzzer();
    ~InterfaceFuzzer();

    /** Starts the panel and enters a temporary working folder (files the calls write land there). */
    bool start();
    /** Runs one input; always 0 (a fault aborts). */
    int run(const uint8_t* data, size_t size);

    /** The input that runs the operations \a names with plain arguments (it is run to make it); empty
     *  when a name is unknown. */
    QByteArray program(const QStringList& names);

    /** The operations, in code order: "<code as 4 hex digits> <name>". */
    static QStringList operations();
    /** The two code bytes of the operation \a name; empty when there is none. */
    static QByteArray codeOf(const QString& name);

    /** How many operations ran. */
    long long operationsRun() const { return m_ops; }

private:
    void cleanUp();

    std::unique_ptr<PanelFixture> m_panel;
    std::unique_ptr<QTemporaryDir> m_cwd;
    bool m_trace = false;
    long long m_ops = 0;
};

#endif // INTERFACEFUZZER_H
