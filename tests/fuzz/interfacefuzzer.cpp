#include "interfacefuzzer.h"

#include "fuzzinput.h"

#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/viewmanage.h"

#include <QDir>
#include <QTemporaryDir>

#include <qgui/qgui.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <list>
#include <new>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

/* ---- records, field by field (the field lists are generated from the public headers) ---- */

template <typename T>
struct Fields {
    static constexpr bool kNone = true;
};

template <typename T, typename = void>
struct HasFields : std::true_type { };
template <typename T>
struct HasFields<T, std::void_t<decltype(Fields<T>::kNone)>> : std::false_type { };

#define QGUI_RECORD(T, body)                                                                                 \
    template <>                                                                                              \
    struct Fields<T> {                                                                                       \
        template <typename F>                                                                                \
        static void each(T& r, F& f);                                                                        \
    };
#include "recordfields.inc"
#undef QGUI_RECORD

constexpr int kMaxDepth = 4; ///< nesting of records through pointers (tree nodes hold their children)

template <typename T>
void fillValue(T& v, FuzzInput& in, int depth);

/* One record behind a pointer (a font, a layout, a call's record): null, or filled and kept until the input
 * is cleared. */
template <typename E>
E* oneRecord(FuzzInput& in, int depth)
{
    if (in.nullPointer())
        return nullptr;
    auto* e = new (in.keep(sizeof(E))) E {};
    fillValue(*e, in, depth);
    return e;
}

/* Makes one record's fields from the input. */
struct Filler {
    FuzzInput& in;
    int depth;

    template <typename T>
    void field(T& v)
    {
        fillValue(v, in, depth);
    }
    void id(U32& v) { v = in.recordId(); }

    /* A pointer and the count that goes with it: an array of exactly that many elements. */
    template <typename P, typename C>
    void array(P& pointer, C& count)
    {
        using E = std::remove_const_t<std::remove_pointer_t<P>>;
        static_assert(std::is_trivially_copyable<E>::value, "arrays of plain records");
        // plain small elements may come by the hundred thousand; records with records inside by the dozen
        bool nullArray = false;
        size_t n = depth >= kMaxDepth ? 0 : in.count(sizeof(E) <= 16, &nullArray);
        if (depth > 0)
            n = std::min<size_t>(n, 8);
        auto* arr = static_cast<E*>(in.keep(n * sizeof(E)));
        const size_t filled = std::min<size_t>(n, 64);
        for (size_t i = 0; i < filled; ++i)
            fillValue(arr[i], in, depth + 1);
        for (size_t i = filled; i < n; ++i)
            arr[i] = arr[i % filled];
        // a null array with a count: the count must not be believed
        pointer = nullArray ? nullptr : n ? arr : (in.nullPointer() ? nullptr : arr);
        count = C(n);
    }
};

#define QGUI_FIELD(n) f.field(r.n);
#define QGUI_ID(n) f.id(r.n);
#define QGUI_ARRAY(p, c) f.array(r.p, r.c);
#define QGUI_RECORD(T, body)                                                                                 \
    template <typename F>                                                                                    \
    void Fields<T>::each(T& r, F& f)                                                                         \
    {                                                                                                        \
        body                                                                                                 \
    }
#include "recordfields.inc"
#undef QGUI_RECORD
#undef QGUI_FIELD
#undef QGUI_ID
#undef QGUI_ARRAY

template <typename T>
struct IsStdFunction : std::false_type { };
template <typename S>
struct IsStdFunction<std::function<S>> : std::true_type { };

template <typename T>
void fillValue(T& v, FuzzInput& in, int depth)
{
    if constexpr (std::is_same<T, bool>::value) {
        v = in.byte() & 1;
    } else if constexpr (std::is_floating_point<T>::value) {
        v = T(in.real());
    } else if constexpr (std::is_integral<T>::value) {
        v = T(in.integer(sizeof(T), std::is_signed<T>::value));
    } else if constexpr (std::is_enum<T>::value) {
        using U = std::underlying_type_t<T>;
        v = T(U(in.integer(sizeof(U), std::is_signed<U>::value)));
    } else if constexpr (std::is_same<T, const char*>::value) {
        v = in.text();
    } else if constexpr (std::is_pointer<T>::value && std::is_function<std::remove_pointer_t<T>>::value) {
        v = nullptr; // call-backs of a record: the fuzzer has none to give
    } else if constexpr (std::is_pointer<T>::value) {
        // one record behind a pointer (a font, a layout): null or filled
        v = depth >= kMaxDepth ? nullptr : oneRecord<std::remove_const_t<std::remove_pointer_t<T>>>(in, depth + 1);
    } else if constexpr (HasFields<T>::value) {
        Filler f { in, depth };
        Fields<T>::each(v, f);
    } else {
        static_assert(sizeof(T) == 0, "a record without a field list");
    }
}

/* ---- arguments of every type an export takes ---- */

template <typename V>
V make(FuzzInput& in);

template <typename T>
struct MakeOf {
    static T get(FuzzInput& in)
    {
        T v {};
        fillValue(v, in, 0);
        return v;
    }
};
template <>
struct MakeOf<std::string> {
    static std::string get(FuzzInput& in) { return in.text(false); }
};
template <typename T>
struct MakeOf<std::vector<T>> {
    static std::vector<T> get(FuzzInput& in)
    {
        std::vector<T> out(in.count(false));
        for (T& e : out)
            e = make<T>(in);
        return out;
    }
};
template <typename T>
struct MakeOf<std::list<T>> {
    static std::list<T> get(FuzzInput& in)
    {
        std::list<T> out;
        for (size_t n = in.count(false); n > 0; --n)
            out.push_back(make<T>(in));
        return out;
    }
};
template <typename A, typename B>
struct MakeOf<std::pair<A, B>> {
    static std::pair<A, B> get(FuzzInput& in)
    {
        A a = make<A>(in);
        return { a, make<B>(in) };
    }
};

template <typename V>
V make(FuzzInput& in)
{
    return MakeOf<V>::get(in);
}

/* Storage for output text: larger than anything written for a 64 KB text. */
char* outputBuffer()
{
    static std::vector<char> bytes(1 << 20);
    return bytes.data();
}

/* One parameter of type P, made from the input; value() is what is passed. */
template <typename P>
struct Arg {
    using V = std::remove_cv_t<std::remove_reference_t<P>>;
    V v;
    explicit Arg(FuzzInput& in)
        : v(init(in))
    {
    }
    static V init(FuzzInput& in)
    {
        if constexpr (std::is_same<V, unsigned int>::value) {
            return in.id(); // widget, window and desktop numbers, and plain numbers
        } else if constexpr (IsStdFunction<V>::value) {
            return V {};
        } else if constexpr (std::is_same<V, const char*>::value || std::is_same<V, const void*>::value) {
            return in.text();
        } else if constexpr (std::is_same<V, char*>::value || std::is_same<V, void*>::value) {
            return outputBuffer();
        } else if constexpr (std::is_same<V, char**>::value) {
            return nullptr;
        } else if constexpr (std::is_pointer<V>::value) {
            using E = std::remove_const_t<std::remove_pointer_t<V>>;
            if constexpr (std::is_class<E>::value) {
                return oneRecord<E>(in, 0);
            } else {
                // arrays of numbers (limits, paging values): 64 of them
                auto* arr = static_cast<E*>(in.keep(64 * sizeof(E)));
                for (int i = 0; i < 64; ++i)
                    fillValue(arr[i], in, 0);
                return arr;
            }
        } else {
            return make<V>(in);
        }
    }
    P value() { return static_cast<P>(v); }
};

template <typename R, typename... A, size_t... I>
long long callWith(R (*fn)(A...), FuzzInput& in, std::index_sequence<I...>)
{
    // braced initialisation: the arguments are read from the input left to right
    std::tuple<Arg<A>...> args { Arg<A>(in)... };
    if constexpr (std::is_integral<R>::value) {
        return (long long)fn(std::get<I>(args).value()...);
    } else {
        (void)fn(std::get<I>(args).value()...);
        return 0;
    }
}

template <typename R, typename... A>
long long callExport(R (*fn)(A...), FuzzInput& in)
{
    return callWith(fn, in, std::index_sequence_for<A...> {});
}

/* ---- the operation table ---- */

struct Operation {
    const char* name;
    std::function<long long(FuzzInput&)> run;
    uint16_t code = 0;
};

uint16_t hashOf(const char* name)
{
    uint32_t h = 2166136261u; // FNV-1a, folded to 16 bits
    for (const char* p = name; *p; ++p)
        h = (h ^ uint8_t(*p)) * 16777619u;
    return uint16_t(h ^ (h >> 16));
}

PanelFixture* g_panel = nullptr;

std::vector<Operation> makeOperations()
{
    // exports left out: the event loop is the panel's own, and View_CvtEncode's lengths are the caller's
    // promise (a length larger than the source over-reads any buffer)
    static const char* const leftOut[] = { "View_MainThreadLoop", "View_CvtEncode" };
    std::vector<Operation> ops;
#define QGUI_CONTRACT_EXPORT(fn) ops.push_back({ #fn, [](FuzzInput& in) { return callExport(&fn, in); } });
#include "../contract/exports.inc"
#undef QGUI_CONTRACT_EXPORT
    ops.erase(std::remove_if(ops.begin(), ops.end(),
                  [](const Operation& o) {
                      return std::any_of(std::begin(leftOut), std::end(leftOut),
                          [&](const char* n) { return std::strcmp(n, o.name) == 0; });
                  }),
        ops.end());
    ops.push_back({ "@frame", [](FuzzInput&) { return TestUtil::waitForFrame(g_panel->view(), 2000) ? 0LL : -1LL; } });
    ops.push_back({ "@settle", [](FuzzInput&) {
                       PanelFixture::settle();
                       return 0LL;
                   } });
    ops.push_back({ "@click", [](FuzzInput& in) {
                       const int x = in.u16() % 800, y = in.u16() % 480;
                       g_panel->click(QPoint(x, y));
                       return 0LL;
                   } });
    for (Operation& o : ops)
        o.code = hashOf(o.name);
    std::sort(ops.begin(), ops.end(), [](const Operation& a, const Operation& b) { return a.code < b.code; });
    return ops;
}

const std::vector<Operation>& operationTable()
{
    static const std::vector<Operation> ops = makeOperations();
    return ops;
}

const Operation& operationFor(uint16_t code)
{
    const std::vector<Operation>& ops = operationTable();
    auto it = std::lower_bound(
        ops.begin(), ops.end(), code, [](const Operation& o, uint16_t c) { return o.code < c; });
    return it == ops.end() ? ops.front() : *it;
}

[[noreturn]] void fault(const char* what)
{
    std::fprintf(stderr, "interface fuzzer: %s\n", what);
    std::fflush(stderr);
    std::abort();
}

} // namespace

InterfaceFuzzer::InterfaceFuzzer()
    : m_panel(std::make_unique<PanelFixture>())
    , m_trace(qEnvironmentVariableIsSet("QGUI_FUZZ_TRACE"))
{
}

InterfaceFuzzer::~InterfaceFuzzer()
{
    g_panel = nullptr;
    m_panel->stop();
    if (m_cwd)
        QDir::setCurrent(QDir::tempPath());
}

bool InterfaceFuzzer::start()
{
    m_cwd = std::make_unique<QTemporaryDir>();
    if (!m_cwd->isValid() || !QDir::setCurrent(m_cwd->path()))
        return false;
    g_panel = m_panel.get();
    if (!m_panel->start())
        return false;
    return m_panel->switchWindow(FuzzInput::windowIds().front(), Rect { 0, 0, 800, 480 }) == 0;
}

QStringList InterfaceFuzzer::operations()
{
    QStringList out;
    for (const Operation& o : operationTable())
        out << QStringLiteral("%1 %2").arg(o.code, 4, 16, QLatin1Char('0')).arg(QString::fromLatin1(o.name));
    return out;
}

QByteArray InterfaceFuzzer::codeOf(const QString& name)
{
    for (const Operation& o : operationTable()) {
        if (name == QLatin1String(o.name)) {
            QByteArray code;
            code.append(char(o.code & 0xff)).append(char(o.code >> 8));
            return code;
        }
    }
    return {};
}

int InterfaceFuzzer::run(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    for (int n = 0; n < 64 && !in.atEnd(); ++n) {
        const Operation& op = operationFor(in.u16());
        if (m_trace)
            std::fprintf(stderr, "  %-36s from byte %zu", op.name, in.consumed());
        const long long result = op.run(in);
        ++m_ops;
        if (m_trace)
            std::fprintf(stderr, " to %zu -> %lld\n", in.consumed(), result);
        in.clear(); // what the records pointed to goes: the library must have copied what it keeps
    }
    cleanUp();
    return 0;
}

QByteArray InterfaceFuzzer::program(const QStringList& names)
{
    std::string out;
    FuzzInput in(&out);
    for (const QString& name : names) {
        const Operation* op = nullptr;
        for (const Operation& o : operationTable()) {
            if (name == QLatin1String(o.name))
                op = &o;
        }
        if (!op)
            return {};
        in.writeCode(op->code);
        // a creation goes into the first window; every other call is about widget 100
        in.setIdsAreWindows(name.startsWith(QLatin1String("View_Create")));
        op->run(in);
        ++m_ops;
        in.clear();
    }
    cleanUp();
    return QByteArray(out.data(), int(out.size()));
}

/* Everything the input made goes; the registry must be empty and a plain creation work. Then the panel is
 * made afresh, so that every input starts from the same state. */
void InterfaceFuzzer::cleanUp()
{
    ViewManage* vm = ViewManage::getInstance();
    View_CloseVirtualKeyboard();
    std::list<unsigned> ids;
    for (auto it = vm->idHash().cbegin(); it != vm->idHash().cend(); ++it)
        ids.push_back(it.key());
    if (View_DeleteWidgets(ids) != 0 && !ids.empty())
        fault("deleting every registered widget failed");
    PanelFixture::settle();
    if (!vm->idHash().isEmpty())
        fault(qPrintable(QStringLiteral("%1 widgets still registered after deleting them all").arg(vm->idHash().size())));
    // the input may have closed or hidden desktop 1: it is made (again) and shown
    const unsigned a = FuzzInput::windowIds().front();
    View_CreateDesktop(Size { 800, 480 }, 1);
    View_ShowDesktop(1);
    if (m_panel->switchWindow(a, Rect { 0, 0, 800, 480 }) != 0)
        fault("the first window cannot be shown again");
    View_Text t {};
    t.header = 100;
    t.rect = Rect { 10, 10, 100, 30 };
    t.id = 4000;
    t.text = "after";
    if (View_CreateText(&t, a) != 0 || !vm->getItemById(4000) || View_DeleteWidgets({ 4000 }) != 0)
        fault("a plain text cannot be made after the input");
    // the registry and every window go; the scene stays
    ViewManage::destroyInstance();
    PanelFixture::settle();
    ViewManage::getInstance();
    View_CreateDesktop(Size { 800, 480 }, 1);
    if (m_panel->switchWindow(a, Rect { 0, 0, 800, 480 }) != 0)
        fault("the panel cannot be started again");
}
