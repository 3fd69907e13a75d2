// The contract of every View_ export under bad input, driven by contract.txt (one row per export of the
// public headers; the catalogue of exported symbols must have a row for each, so a new export without one
// fails). Each export is called with arguments made for a case:
//   absent  the subject (its first unsigned int argument: a widget, window or desktop) is unknown, 0, or a
//           widget deleted a moment ago;
//   null    every record pointer is null;
//   live    the subject is a live widget of every kind in turn (its own kind and every other), with plain
//           arguments, then with each text argument null, empty, invalid UTF-8 and 1 MB long, and each number
//           NaN, infinite, negative, INT_MIN and INT_MAX;
// and the result must be the one the row states. After each export the registry holds exactly the widgets
// it should, and a plain call on a fresh widget still works.
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"
#include "common/widgetkinds.h"

#include "fuzz/interfacefuzzer.h"

#include "app/xquickview.h"
#include "views/lifecyclemanager.h"
#include "views/viewmanage.h"

#include <QDir>
#include <QQuickWindow>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <climits>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <list>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

enum class Case {
    Plain,
    Unknown,
    Zero,
    Deleted,
    Null,
    TextNull,
    TextEmpty,
    TextInvalid,
    TextHuge,
    NaN,
    Infinite,
    Negative,
    Min,
    Max
};

const char* caseName(Case c)
{
    static const char* const names[] = { "plain", "unknown id", "id 0", "deleted id", "null records", "null texts",
        "empty texts", "invalid UTF-8", "1 MB texts", "NaN", "infinite", "negative", "INT_MIN", "INT_MAX" };
    return names[int(c)];
}

constexpr unsigned kUnknown = 0x7ABC0123u;
constexpr unsigned kDeleted = 4321;

/* What an argument is made from. */
struct Ctx {
    Case c = Case::Plain;
    unsigned subject = 0; ///< the live widget for Plain and the text and number cases
};

const std::string& hugeText()
{
    static const std::string text(1 << 20, 'x');
    return text;
}

const char* textFor(Case c)
{
    switch (c) {
    case Case::TextNull:
        return nullptr;
    case Case::TextEmpty:
        return "";
    case Case::TextInvalid:
        return "\xff\xfe bad \xc3\x28 \xed\xa0\x80 end";
    case Case::TextHuge:
        return hugeText().c_str();
    default:
        return "text 文字";
    }
}

template <typename N>
N numberFor(Case c, bool subject, const Ctx& ctx)
{
    if (subject) {
        switch (c) {
        case Case::Unknown:
            return N(kUnknown);
        case Case::Zero:
            return N(0);
        case Case::Deleted:
            return N(kDeleted);
        default:
            return N(ctx.subject);
        }
    }
    using L = std::numeric_limits<N>;
    switch (c) {
    case Case::NaN:
        return L::has_quiet_NaN ? L::quiet_NaN() : L::max();
    case Case::Infinite:
        return L::has_infinity ? L::infinity() : L::max();
    case Case::Negative:
        return std::is_signed<N>::value ? N(-5) : N(L::max() - 4);
    case Case::Min:
        return std::is_signed<N>::value ? L::lowest() : N(0);
    case Case::Max:
        return L::max();
    default:
        return N(1);
    }
}

/* One argument of type T made for a case; value() is what is passed. */
template <typename T, typename Enable = void>
struct Holder;

template <typename N>
struct Holder<N, std::enable_if_t<std::is_arithmetic<N>::value && !std::is_same<N, bool>::value>> {
    N v;
    Holder(const Ctx& ctx, bool subject)
        : v(numberFor<N>(ctx.c, subject, ctx))
    {
    }
    N value() { return v; }
};

template <>
struct Holder<bool> {
    Holder(const Ctx&, bool) { }
    bool value() { return true; }
};

template <typename E>
struct Holder<E, std::enable_if_t<std::is_enum<E>::value>> {
    E v;
    Holder(const Ctx& ctx, bool)
        : v(E(ctx.c == Case::Max ? 0x7fffffff : ctx.c == Case::Negative ? -5 : 0))
    {
    }
    E value() { return v; }
};

template <>
struct Holder<const char*> {
    const char* v;
    Holder(const Ctx& ctx, bool)
        : v(textFor(ctx.c))
    {
    }
    const char* value() { return v; }
};

template <>
struct Holder<const std::string&> {
    std::string v;
    Holder(const Ctx& ctx, bool)
        : v(textFor(ctx.c) ? textFor(ctx.c) : "")
    {
    }
    const std::string& value() { return v; }
};

template <>
struct Holder<const std::vector<std::string>&> {
    std::vector<std::string> v;
    Holder(const Ctx& ctx, bool)
        : v { textFor(ctx.c) ? textFor(ctx.c) : "", "second" }
    {
    }
    const std::vector<std::string>& value() { return v; }
};

/* Containers of ids: the subject and an unknown one. */
template <typename C>
struct IdContainer {
    C v;
    IdContainer(const Ctx& ctx, bool)
    {
        v.push_back(typename C::value_type(numberFor<unsigned>(ctx.c, true, ctx)));
        v.push_back(typename C::value_type(kUnknown));
    }
};
template <>
struct Holder<const std::vector<unsigned int>&> : IdContainer<std::vector<unsigned int>> {
    using IdContainer::IdContainer;
    const std::vector<unsigned int>& value() { return v; }
};
template <>
struct Holder<const std::list<unsigned int>&> : IdContainer<std::list<unsigned int>> {
    using IdContainer::IdContainer;
    const std::list<unsigned int>& value() { return v; }
};
template <>
struct Holder<const std::list<int>&> {
    std::list<int> v;
    Holder(const Ctx& ctx, bool)
        : v { numberFor<int>(ctx.c, false, ctx), 0 }
    {
    }
    const std::list<int>& value() { return v; }
};

/* A zeroed record (a C structure of the public headers). */
template <typename R>
std::unique_ptr<R> zeroed()
{
    static_assert(std::is_trivially_destructible<R>::value, "records are plain structures");
    auto* raw = static_cast<R*>(::operator new(sizeof(R)));
    std::memset(static_cast<void*>(raw), 0, sizeof(R));
    return std::unique_ptr<R>(raw);
}

/* Record pointers, const or not: null for the null case, else a zeroed record. */
template <typename R>
struct Holder<R*, std::enable_if_t<std::is_class<std::remove_const_t<R>>::value>> {
    std::unique_ptr<std::remove_const_t<R>> v;
    bool null;
    Holder(const Ctx& ctx, bool)
        : v(zeroed<std::remove_const_t<R>>())
        , null(ctx.c == Case::Null)
    {
    }
    R* value() { return null ? nullptr : v.get(); }
};

/* Records by reference (in or out): zeroed. */
template <typename R>
struct Holder<R&, std::enable_if_t<std::is_class<std::remove_const_t<R>>::value
                      && std::is_trivially_destructible<std::remove_const_t<R>>::value>> {
    std::unique_ptr<std::remove_const_t<R>> v = zeroed<std::remove_const_t<R>>();
    Holder(const Ctx&, bool) { }
    R& value() { return *v; }
};

/* Records by value: zeroed. */
template <typename R>
struct Holder<R, std::enable_if_t<std::is_class<R>::value && std::is_trivially_destructible<R>::value>> {
    std::unique_ptr<R> v = zeroed<R>();
    Holder(const Ctx&, bool) { }
    R value() { return *v; }
};

/* Raw input bytes: the text of the case. */
template <>
struct Holder<const void*> {
    const char* v;
    Holder(const Ctx& ctx, bool)
        : v(textFor(ctx.c))
    {
    }
    const void* value() { return v; }
};

/* Arrays of numbers (values per channel): 64 of the case's number. */
template <>
struct Holder<double*> {
    double v[64];
    Holder(const Ctx& ctx, bool)
    {
        std::fill(std::begin(v), std::end(v), numberFor<double>(ctx.c, false, ctx));
    }
    double* value() { return v; }
};
template <>
struct Holder<const double*> : Holder<double*> {
    using Holder<double*>::Holder;
    const double* value() { return v; }
};

template <>
struct Holder<int&> {
    int v = 0;
    Holder(const Ctx&, bool) { }
    int& value() { return v; }
};

/* Output buffers: large enough for anything the library writes for a 1 MB text. */
struct Buffer {
    std::vector<char> bytes = std::vector<char>(8 << 20, '\0');
};
template <>
struct Holder<char*> : Buffer {
    Holder(const Ctx&, bool) { }
    char* value() { return bytes.data(); }
};
template <>
struct Holder<void*> : Buffer {
    Holder(const Ctx&, bool) { }
    void* value() { return bytes.data(); }
};
template <>
struct Holder<unsigned int*> {
    unsigned int v[64] = {};
    Holder(const Ctx&, bool) { }
    unsigned int* value() { return v; }
};
template <>
struct Holder<char**> {
    char* v[2] = { nullptr, nullptr };
    Holder(const Ctx&, bool) { }
    char** value() { return v; }
};
template <>
struct Holder<std::vector<std::string>&> {
    std::vector<std::string> v;
    Holder(const Ctx&, bool) { }
    std::vector<std::string>& value() { return v; }
};

/* Containers of records: one zeroed element (pointers: one null). */
template <typename C>
struct RecordContainer {
    C v;
    RecordContainer(const Ctx& ctx, bool)
    {
        typename C::value_type e {};
        if constexpr (std::is_pointer<typename C::value_type>::value)
            e = nullptr;
        v.push_back(e);
        if (ctx.c == Case::Null)
            v.clear();
    }
    const C& value() { return v; }
};
template <typename T>
struct Holder<const std::vector<T>&,
    std::enable_if_t<!std::is_same<T, std::string>::value && !std::is_same<T, unsigned int>::value>>
    : RecordContainer<std::vector<T>> {
    using RecordContainer<std::vector<T>>::RecordContainer;
};
template <typename T>
struct Holder<const std::list<T>&, std::enable_if_t<!std::is_same<T, unsigned int>::value && !std::is_same<T, int>::value>>
    : RecordContainer<std::list<T>> {
    using RecordContainer<std::list<T>>::RecordContainer;
};

template <>
struct Holder<std::function<void(void*)>> {
    Holder(const Ctx&, bool) { }
    std::function<void(void*)> value() { return {}; }
};

/* The index of the first unsigned int parameter (the subject), or -1. */
template <typename... A, size_t... I>
constexpr int firstUnsigned(std::index_sequence<I...>)
{
    int found = -1;
    ((found < 0 && std::is_same<std::decay_t<A>, unsigned int>::value ? (found = int(I)) : 0), ...);
    return found;
}

/* What a call answered: its int result, or "not a number" for other result types. */
struct Answer {
    bool isInt = false;
    long long value = 0;
};

template <typename R, typename... A, size_t... I>
Answer callWith(R (*fn)(A...), const Ctx& ctx, std::index_sequence<I...> seq)
{
    constexpr int subject = firstUnsigned<A...>(seq);
    // each argument's storage lives until the call returns
    std::tuple<Holder<A>...> holders { Holder<A>(ctx, int(I) == subject)... };
    if constexpr (std::is_integral<R>::value) {
        return Answer { true, (long long)fn(std::get<I>(holders).value()...) };
    } else if constexpr (std::is_void<R>::value) {
        fn(std::get<I>(holders).value()...);
        return Answer {};
    } else {
        (void)fn(std::get<I>(holders).value()...);
        return Answer {};
    }
}

template <typename R, typename... A>
Answer call(R (*fn)(A...), const Ctx& ctx)
{
    return callWith(fn, ctx, std::index_sequence_for<A...> {});
}

/* Which cases an export's parameters make meaningful. */
struct Shape {
    bool subject = false, record = false, text = false, number = false;
};

template <typename T>
constexpr bool isRecordPointer()
{
    return std::is_pointer<T>::value && std::is_class<std::remove_const_t<std::remove_pointer_t<T>>>::value;
}

template <typename R, typename... A>
Shape shapeOf(R (*)(A...))
{
    Shape s;
    s.subject = firstUnsigned<A...>(std::index_sequence_for<A...> {}) >= 0;
    s.record = (isRecordPointer<A>() || ...);
    s.text = ((std::is_same<A, const char*>::value || std::is_same<A, const std::string&>::value
                  || std::is_same<A, const std::vector<std::string>&>::value)
        || ...);
    constexpr int numbers = ((std::is_arithmetic<A>::value && !std::is_same<A, bool>::value ? 1 : 0) + ... + 0);
    s.number = numbers > (s.subject ? 1 : 0) || (std::is_floating_point<A>::value || ...);
    return s;
}

struct Export {
    const char* name;
    std::function<Answer(const Ctx&)> call;
    Shape shape;
};

#define QGUI_CONTRACT_EXPORT(fn) { #fn, [](const Ctx& c) { return call(&fn, c); }, shapeOf(&fn) },
const std::vector<Export>& exports()
{
    static const std::vector<Export> all {
#include "exports.inc"
    };
    return all;
}
#undef QGUI_CONTRACT_EXPORT

/* One row of contract.txt. */
struct Row {
    QString name;
    QString skip; ///< why it is not called here (another test covers it)
    QMap<QString, QSet<long long>> results; ///< case class -> the results allowed
};

/* "fuzz <input> | <what it broke>" rows: inputs of tests/fuzz/corpus. */
QList<QPair<QString, QString>> g_fuzzFindings;

QString sourceDir()
{
    return qEnvironmentVariable("QGUI_TEST_SOURCE_DIR");
}

QMap<QString, Row> readTable(QString* error)
{
    QMap<QString, Row> rows;
    QFile f(sourceDir() + QStringLiteral("/tests/contract/contract.txt"));
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = QStringLiteral("contract.txt not found");
        return rows;
    }
    int lineNo = 0;
    while (!f.atEnd()) {
        ++lineNo;
        const QString line = QString::fromUtf8(f.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        // "<export as the catalogue names it> | <case>=<result>[,<result>...] ..." or "... | skip=<why>"
        const int bar = line.indexOf(QLatin1String(" | "));
        if (bar < 0) {
            *error = QStringLiteral("line %1: no \" | \"").arg(lineNo);
            return {};
        }
        Row row;
        row.name = line.left(bar).trimmed();
        if (row.name.startsWith(QLatin1String("fuzz "))) {
            // an input of the fuzzer that once broke the interface: run again by fuzz_findings_stay_fixed
            g_fuzzFindings << qMakePair(row.name.mid(5).trimmed(), line.mid(bar + 3).trimmed());
            continue;
        }
        const QString rest = line.mid(bar + 3).trimmed();
        if (rest.startsWith(QLatin1String("skip="))) {
            row.skip = rest.mid(5);
        } else {
            for (const QString& p : rest.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts)) {
                const int eq = p.indexOf(QLatin1Char('='));
                if (eq < 0) {
                    *error = QStringLiteral("line %1: %2").arg(lineNo).arg(p);
                    return {};
                }
                QSet<long long> allowed;
                for (const QString& v : p.mid(eq + 1).split(QLatin1Char(',')))
                    allowed.insert(v.toLongLong());
                row.results.insert(p.left(eq), allowed);
            }
        }
        rows.insert(row.name, row);
    }
    return rows;
}

QStringList cataloguedViewExports()
{
    QStringList out;
    QFile f(sourceDir() + QStringLiteral("/tests/catalogue/catalogue.txt"));
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return out;
    while (!f.atEnd()) {
        QString line = QString::fromUtf8(f.readLine()).trimmed();
        if (line.startsWith(QLatin1Char('#')) || line.isEmpty())
            continue;
        // the View_ exports of C++ linkage are listed with their parameters (and ABI tag): rows use the plain name
        if (line.startsWith(QLatin1String("View_")))
            line = line.left(line.indexOf(QRegularExpression(QStringLiteral("[(\\[]|$"))));
        out << line;
    }
    return out;
}

QString show(const QSet<long long>& s)
{
    QStringList out;
    for (long long v : s)
        out << QString::number(v);
    std::sort(out.begin(), out.end(), [](const QString& a, const QString& b) { return a.toLongLong() > b.toLongLong(); });
    return out.join(QLatin1Char(','));
}

/* QGUI_CONTRACT_RECORD=<file>: what each export answered per case class, written at the end (to draft rows
 * for a new export; every row is then checked against the export's documentation). */
QMap<QString, QMap<QString, QSet<long long>>> g_seen;
long long g_calls = 0; ///< every call checked
int g_checkedExports = 0;

} // namespace

Q_DECLARE_METATYPE(Rect)

class tst_Contract : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void every_export_has_a_row();
    void every_export_keeps_its_contract_data();
    void every_export_keeps_its_contract();
    void every_kind_takes_enormous_and_negative_boxes_data();
    void every_kind_takes_enormous_and_negative_boxes();
    void fuzz_findings_stay_fixed_data();
    void fuzz_findings_stay_fixed();

private:
    /* Creates one widget of every kind in window A (ids from kFirst); their ids. */
    QList<unsigned> makeEveryKind();
    bool check(const Row& row, const QString& cls, const Answer& a, Case c, const char* kind, QStringList* faults);

    static constexpr unsigned kFirst = 1000;
    PanelFixture m_panel;
    QTemporaryDir m_cwd;
    QString m_oldCwd;
    QMap<QString, Row> m_rows;
    QString m_tableError;
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_Contract::initTestCase()
{
    m_rows = readTable(&m_tableError);
    // exports that write files write them here
    m_oldCwd = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_cwd.path()));
}

void tst_Contract::cleanupTestCase()
{
    QDir::setCurrent(m_oldCwd);
    std::printf("contract: %d exports, %lld calls\n", g_checkedExports, g_calls);
    std::fflush(stdout);
    const QString out = qEnvironmentVariable("QGUI_CONTRACT_RECORD");
    if (out.isEmpty())
        return;
    QFile f(out);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Text));
    for (auto it = g_seen.cbegin(); it != g_seen.cend(); ++it) {
        QStringList parts;
        for (auto c = it.value().cbegin(); c != it.value().cend(); ++c)
            parts << c.key() + QLatin1Char('=') + show(c.value());
        f.write((it.key() + QStringLiteral(" | ") + parts.join(QLatin1Char(' '))).toUtf8() + '\n');
    }
}

void tst_Contract::init()
{
    QVERIFY(m_panel.start());
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
}

void tst_Contract::cleanup()
{
    m_panel.stop();
}

void tst_Contract::every_export_has_a_row()
{
    QVERIFY2(m_tableError.isEmpty(), qPrintable(m_tableError));
    const QStringList catalogued = cataloguedViewExports();
    QVERIFY(!catalogued.isEmpty());
    QSet<QString> called;
    for (const Export& e : exports())
        called.insert(QString::fromLatin1(e.name));
    QStringList missing;
    for (const QString& name : catalogued) {
        if (!m_rows.contains(name))
            missing << name + QStringLiteral(" (no row in contract.txt)");
        if (name.startsWith(QLatin1String("View_")) && !called.contains(name))
            missing << name + QStringLiteral(" (not in exports.inc)");
    }
    for (const QString& name : m_rows.keys()) {
        if (!catalogued.contains(name))
            missing << name + QStringLiteral(" (a row for no export)");
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QStringLiteral(", "))));
}

QList<unsigned> tst_Contract::makeEveryKind()
{
    QList<unsigned> ids;
    const QList<WidgetKind>& kinds = widgetKinds();
    for (int k = 0; k < kinds.size(); ++k) {
        const unsigned id = kFirst + unsigned(k);
        if (kinds.at(k).create(id, A, Rect { 10 + 5 * (k % 10), 10 + 5 * (k / 10), 120, 60 }) == 0)
            ids << id;
    }
    return ids;
}

bool tst_Contract::check(
    const Row& row, const QString& cls, const Answer& a, Case c, const char* kind, QStringList* faults)
{
    ++g_calls;
    if (a.isInt)
        g_seen[row.name][cls].insert(a.value);
    if (!a.isInt || !row.results.contains(cls))
        return true;
    const QSet<long long>& allowed = row.results.value(cls);
    if (allowed.contains(a.value))
        return true;
    *faults << QStringLiteral("%1 (%2%3): %4, the table says %5")
                   .arg(cls, QString::fromLatin1(caseName(c)),
                       kind ? QStringLiteral(", ") + QString::fromLatin1(kind) : QString())
                   .arg(a.value)
                   .arg(show(allowed));
    return false;
}

void tst_Contract::every_export_keeps_its_contract_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(exports().size()); ++i)
        QTest::newRow(exports().at(i).name) << i;
}

void tst_Contract::every_export_keeps_its_contract()
{
    QFETCH(int, index);
    const Export& e = exports().at(size_t(index));
    const QString name = QString::fromLatin1(e.name);
    const bool recording = qEnvironmentVariableIsSet("QGUI_CONTRACT_RECORD");
    QVERIFY2(recording || m_rows.contains(name), "no row in contract.txt");
    Row row = m_rows.value(name);
    row.name = name;
    if (!row.skip.isEmpty())
        QSKIP(qPrintable(row.skip));

    ViewManage* vm = ViewManage::getInstance();
    const QList<WidgetKind>& kinds = widgetKinds();
    QStringList faults;
    ++g_checkedExports;

    // a widget made and deleted a moment ago stands for every deleted id
    QCOMPARE(kinds.first().create(kDeleted, A, Rect { 0, 0, 50, 20 }), 0);
    QCOMPARE(View_DeleteWidgets({ kDeleted }), 0);
    PanelFixture::settle();

    if (e.shape.subject) {
        for (Case c : { Case::Unknown, Case::Zero, Case::Deleted })
            check(row, QStringLiteral("absent"), e.call(Ctx { c, 0 }), c, nullptr, &faults);
    }
    if (e.shape.record)
        check(row, QStringLiteral("null"), e.call(Ctx { Case::Null, kUnknown }), Case::Null, nullptr, &faults);

    const QList<unsigned> live = makeEveryKind();
    QCOMPARE(live.size(), kinds.size());
    QList<Case> cases { Case::Plain };
    if (e.shape.text)
        cases << Case::TextNull << Case::TextEmpty << Case::TextInvalid << Case::TextHuge;
    if (e.shape.number)
        cases << Case::NaN << Case::Infinite << Case::Negative << Case::Min << Case::Max;
    const bool perKind = e.shape.subject;
    for (Case c : cases) {
        for (int k = 0; k < (perKind ? live.size() : 1); ++k) {
            const unsigned id = live.at(k);
            if (perKind && !vm->getItemById(id))
                continue; // taken by an earlier call of this export (a delete): counted below
            check(row, QStringLiteral("live"), e.call(Ctx { c, id }), c, perKind ? kinds.at(k).name : nullptr,
                &faults);
        }
        PanelFixture::settle();
    }
    if (faults.size() > 8)
        faults = faults.mid(0, 8) << QStringLiteral("... %1 more").arg(faults.size() - 8);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("; "))));

    // the registry still works: everything goes, a fresh widget takes plain calls
    std::list<unsigned> all(live.begin(), live.end());
    QCOMPARE(View_DeleteWidgets(all), 0);
    PanelFixture::settle();
    QCOMPARE(vm->idHash().size(), 0);
    QCOMPARE(kinds.at(1).create(kFirst, A, Rect { 5, 5, 100, 30 }), 0);
    QVERIFY(vm->getItemById(kFirst));
    QCOMPARE(View_MoveWidget(kFirst, 20, 20), 0);
    QCOMPARE(View_DeleteWidgets({ kFirst }), 0);
}

void tst_Contract::every_kind_takes_enormous_and_negative_boxes_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<Rect>("box");
    // (found by the fuzzer: INT_MAX from an origin past 0 overflowed the box's right edge, an empty box at
    // INT_MIN its left edge)
    const QList<Rect> boxes { { 0, 0, 100000, 100000 }, { 0, 0, INT_MAX, INT_MAX }, { 50, 50, -300, -200 },
        { INT_MIN, INT_MIN, INT_MAX, INT_MAX }, { 40, 40, INT_MAX, INT_MAX }, { INT_MIN, INT_MIN, 0, 0 } };
    const char* const boxNames[] = { "100000 x 100000", "INT_MAX", "negative size", "INT_MIN origin",
        "INT_MAX from 40", "empty at INT_MIN" };
    for (int k = 0; k < widgetKinds().size(); ++k) {
        for (int b = 0; b < boxes.size(); ++b)
            QTest::addRow("%s, %s", widgetKinds().at(k).name, boxNames[b]) << k << boxes.at(b);
    }
}

/* Created with a box no panel has, a widget of every kind is made (the box is the logic layer's) and shown,
 * and what it costs stays in proportion to the panel: the picture of a painted kind is never larger than
 * the window. */
void tst_Contract::every_kind_takes_enormous_and_negative_boxes()
{
    QFETCH(int, kind);
    QFETCH(Rect, box);
    const long before = TestUtil::residentKiB();
    QCOMPARE(widgetKinds().at(kind).create(2000, A, box), 0);
    QCOMPARE(View_ShowWidget(2000, 0, ItemSlashType(0)), 0);
    const QImage frame = m_panel.view()->grabWindow(); // a frame rendered with the widget in it
    QVERIFY(!frame.isNull());
    const long grown = TestUtil::residentKiB() - before;
    QVERIFY2(grown < 64 * 1024, qPrintable(QStringLiteral("%1 MiB more for one widget").arg(grown / 1024)));
    Rect got {};
    QCOMPARE(View_GetWgtRect(2000, got), 0);
    QCOMPARE(View_DeleteWidgets({ 2000 }), 0);
    PanelFixture::settle();
}

void tst_Contract::fuzz_findings_stay_fixed_data()
{
    QTest::addColumn<QString>("input");
    QVERIFY2(!g_fuzzFindings.isEmpty() || !m_tableError.isEmpty(), "no fuzz rows in contract.txt");
    for (const auto& f : qAsConst(g_fuzzFindings))
        QTest::newRow(qPrintable(f.second)) << f.first;
}

/* The input runs on the fuzzer's own panel, as when it was found; a fault aborts the test. */
void tst_Contract::fuzz_findings_stay_fixed()
{
    QFETCH(QString, input);
    QFile f(sourceDir() + QStringLiteral("/tests/fuzz/corpus/") + input);
    QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(f.fileName()));
    const QByteArray bytes = f.readAll();
    m_panel.stop();
    InterfaceFuzzer fuzzer;
    QVERIFY(fuzzer.start());
    fuzzer.run(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
    QVERIFY(fuzzer.operationsRun() > 0);
}

QGUI_GUIAPP_TEST_MAIN(tst_Contract)
#include "tst_contract.moc"
