#ifndef FUZZINPUT_H
#define FUZZINPUT_H

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

/**
 * The bytes of one fuzz input, read front to back into the values of calls: numbers, ids, texts, counts.
 * Every read is defined whatever the bytes (an exhausted input reads zeros, which make plain values), so
 * any byte string is a valid program.
 *
 * Each value starts with a selector byte: small selectors pick the values that break code (NaN, the
 * infinities, INT_MIN / INT_MAX, negative sizes, null, empty, invalid UTF-8, 64 KB texts), the rest read a
 * plain value from the following bytes. Memory a value points to stays until clear(): the calls' records
 * point into it.
 */
class FuzzInput {
public:
    FuzzInput(const uint8_t* data, size_t size);
    /** An input that writes instead of reading: every value read is a plain one (ids of widget 100, or of
     *  the first window while \a idsAreWindows; numbers 40; multibyte texts; four elements), and the bytes
     *  that read it are appended to \a out. Seeds of the corpus are made this way. */
    explicit FuzzInput(std::string* out);
    void setIdsAreWindows(bool on) { m_idsAreWindows = on; }

    bool atEnd() const { return m_pos >= m_size; }
    size_t consumed() const { return m_pos; }

    uint8_t byte();
    uint16_t u16();
    /** Appends an operation code (writing inputs only). */
    void writeCode(uint16_t code);
    /** \a n raw bytes (fewer when the input ends; the rest zero). */
    void raw(void* out, size_t n);

    /** A signed or unsigned integer of \a bytes bytes, as a 64-bit value. */
    int64_t integer(size_t bytes, bool isSigned);
    double real();
    /** An id: a widget id of the input's pool (made, deleted or never made), a window or desktop number,
     *  0, or any 32-bit value. */
    uint32_t id();
    /** The id field of a record: as id(). */
    uint32_t recordId();
    /** A text: null (when \a nullable), empty, multibyte, invalid UTF-8, 64 KB, or up to 255 input bytes.
     *  Never an absolute path or one that climbs out of the working folder. */
    const char* text(bool nullable = true);
    /** How many elements an array gets: mostly 0..32; \a large allows 1,000 and 100,000. \a nullArray
     *  tells whether the array's pointer is to be null whatever its count (1 in 64). */
    size_t count(bool large, bool* nullArray = nullptr);
    /** Whether a pointer to one record is null (1 in 16). */
    bool nullPointer();

    /** Zeroed storage of \a bytes that lives until clear(). */
    void* keep(size_t bytes);
    void clear();

    /** The widget ids the input's creations use (the pool). */
    static const std::vector<uint32_t>& widgetIds();
    /** The windows: two of desktop 1 and one of desktop 2. */
    static const std::vector<uint32_t>& windowIds();

private:
    enum class Reading { Raw, Integer, Real, Id, RecordId, Text, Count, Pointer };
    uint8_t next(Reading what);

    std::string* m_out = nullptr;
    bool m_idsAreWindows = false;
    const uint8_t* m_data;
    size_t m_size;
    size_t m_pos = 0;
    std::deque<std::string> m_texts;
    std::deque<std::unique_ptr<uint8_t[]>> m_blocks;
};

#endif // FUZZINPUT_H
