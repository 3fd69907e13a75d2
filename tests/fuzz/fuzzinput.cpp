#include "fuzzinput.h"

#include <climits>
#include <cstring>
#include <limits>

FuzzInput::FuzzInput(const uint8_t* data, size_t size)
    : m_data(data)
    , m_size(size)
{
}

FuzzInput::FuzzInput(std::string* out)
    : m_out(out)
    , m_data(nullptr)
    , m_size(0)
{
}

uint8_t FuzzInput::next(Reading what)
{
    if (!m_out)
        return m_pos < m_size ? m_data[m_pos++] : 0;
    // writing: the selector of a plain value
    uint8_t b = 0;
    switch (what) {
    case Reading::Integer:
        b = 16 + 40;
        break;
    case Reading::Real:
        b = 92; // 40.0
        break;
    case Reading::Id:
        b = m_idsAreWindows ? 192 : 0;
        break;
    case Reading::Text:
        b = 2;
        break;
    case Reading::Count:
        b = 4;
        break;
    case Reading::RecordId:
    case Reading::Pointer:
    case Reading::Raw:
        b = 0;
        break;
    }
    m_out->push_back(char(b));
    return b;
}

uint8_t FuzzInput::byte()
{
    return next(Reading::Raw);
}

void FuzzInput::writeCode(uint16_t code)
{
    if (m_out) {
        m_out->push_back(char(code & 0xff));
        m_out->push_back(char(code >> 8));
    }
}

uint16_t FuzzInput::u16()
{
    const uint16_t lo = byte();
    return uint16_t(lo | (uint16_t(byte()) << 8));
}

void FuzzInput::raw(void* out, size_t n)
{
    auto* p = static_cast<uint8_t*>(out);
    if (m_out) {
        m_out->append(n, '\0');
        std::memset(p, 0, n);
        return;
    }
    const size_t have = m_pos < m_size ? std::min(n, m_size - m_pos) : 0;
    if (have)
        std::memcpy(p, m_data + m_pos, have);
    std::memset(p + have, 0, n - have);
    m_pos += have;
}

int64_t FuzzInput::integer(size_t bytes, bool isSigned)
{
    static const int64_t special[] = { 0, 1, -1, -5, INT_MIN, INT_MAX, 100000, 2, 3, 255, 256, 65535, 1000,
        INT_MAX / 2, -100000, 0x7fff };
    const uint8_t s = next(Reading::Integer);
    if (s < 16)
        return special[s];
    if (s < 128)
        return s - 16;
    uint64_t v = 0;
    raw(&v, std::min<size_t>(bytes, sizeof v));
    if (isSigned && bytes < 8 && (v >> (bytes * 8 - 1)) & 1)
        v |= ~uint64_t(0) << (bytes * 8); // sign-extended
    return int64_t(v);
}

double FuzzInput::real()
{
    using L = std::numeric_limits<double>;
    static const double special[] = { L::quiet_NaN(), L::infinity(), -L::infinity(), 0.0, -0.0, L::max(),
        -L::max(), L::denorm_min(), 1e15, -1e15, 0.5, -1.0 };
    const uint8_t s = next(Reading::Real);
    if (s < 12)
        return special[s];
    if (s < 160)
        return (int(s) - 60) * 1.25;
    double v = 0;
    raw(&v, sizeof v);
    return v;
}

const std::vector<uint32_t>& FuzzInput::widgetIds()
{
    static const std::vector<uint32_t> ids { 100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111 };
    return ids;
}

const std::vector<uint32_t>& FuzzInput::windowIds()
{
    static const std::vector<uint32_t> ids { (1u << 16) | 1, (1u << 16) | 2, (2u << 16) | 1 };
    return ids;
}

uint32_t FuzzInput::recordId()
{
    const bool windows = m_idsAreWindows;
    m_idsAreWindows = false;
    const uint32_t v = id();
    m_idsAreWindows = windows;
    return v;
}

uint32_t FuzzInput::id()
{
    const uint8_t s = next(Reading::Id);
    const std::vector<uint32_t>& widgets = widgetIds();
    if (s < 192)
        return widgets[s % widgets.size()];
    if (s < 224)
        return windowIds()[s % windowIds().size()];
    switch (s) {
    case 224:
        return 0;
    case 225:
        return 1;
    case 226:
        return 2;
    case 227:
        return UINT_MAX;
    case 228:
        return 0x80000000u;
    default:
        break;
    }
    uint32_t v = 0;
    raw(&v, sizeof v);
    return v;
}

const char* FuzzInput::text(bool nullable)
{
    static const char* const samples[] = {
        "温度 °C ✓ 𝄞 ß",
        "\xff\xfe bad \xc3\x28 \xed\xa0\x80 \xf4\x90\x80\x80 end \xc0\xaf",
        "2026-01-31 23:59:59",
        "-1e308",
        "nan",
        "<b>bold</b> &amp; %s%n%d",
        "line 1\nline 2\r\n\tline 3",
        "a.png",
        "x.pdf",
        "12.5",
    };
    constexpr int kSamples = int(sizeof samples / sizeof samples[0]);
    const uint8_t s = next(Reading::Text);
    std::string t;
    if (s == 0) {
        if (nullable)
            return nullptr;
    } else if (s == 1) {
        // empty
    } else if (s < 2 + kSamples) {
        t = samples[s - 2];
    } else if (s == 2 + kSamples) {
        // 64 KB: a chunk of the input repeated
        const size_t chunk = 1 + byte() % 16;
        std::string unit(chunk, '\0');
        raw(&unit[0], chunk);
        for (char& c : unit) {
            if (c == '\0')
                c = 'x';
        }
        t.reserve(64 * 1024);
        while (t.size() + chunk <= 64 * 1024)
            t += unit;
    } else {
        t.resize(byte());
        raw(&t[0], t.size());
        t.resize(std::strlen(t.c_str())); // up to the first NUL, as C text is read
    }
    // texts also name files: keep them inside the working folder
    if (!t.empty() && t[0] == '/')
        t[0] = '_';
    for (size_t p = t.find(".."); p != std::string::npos; p = t.find("..", p))
        t[p + 1] = '_';
    if (!t.empty() && t[0] == '~')
        t[0] = '_';
    m_texts.push_back(std::move(t));
    return m_texts.back().c_str();
}

size_t FuzzInput::count(bool large, bool* nullArray)
{
    const uint8_t s = next(Reading::Count);
    if (nullArray)
        *nullArray = s >= 252;
    if (s < 240)
        return s % 33;
    if (!large)
        return 64;
    return s < 248 ? 1000 : 100000;
}

bool FuzzInput::nullPointer()
{
    return (next(Reading::Pointer) & 0x0f) == 0x0f;
}

void* FuzzInput::keep(size_t bytes)
{
    m_blocks.emplace_back(new uint8_t[bytes ? bytes : 1]());
    return m_blocks.back().get();
}

void FuzzInput::clear()
{
    m_texts.clear();
    m_blocks.clear();
}
