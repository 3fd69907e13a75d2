#include "utils/md5.h"

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <mutex>

namespace {

/* Position tables of the password block (see md5.h). W: where digest byte i goes;
 * R: the byte that disguises it. Disjoint, W without repeats. */
constexpr uint8_t kWrite[16] = { 5, 62, 17, 40, 28, 9, 51, 34, 1, 46, 23, 58, 13, 37, 20, 55 };
constexpr uint8_t kRead[16] = { 0, 11, 26, 44, 3, 60, 31, 15, 49, 7, 39, 22, 57, 33, 2, 48 };

/* The second pair, of the same form, reserved for blocks kept in the panel's I2C memory.
 * i2c_encrypt_hash deliberately writes ordinary blocks, so these are not used for now. */
[[maybe_unused]] constexpr uint8_t kI2cWrite[16]
    = { 60, 3, 44, 19, 8, 31, 52, 14, 27, 39, 0, 48, 22, 35, 11, 56 };
[[maybe_unused]] constexpr uint8_t kI2cRead[16]
    = { 6, 41, 25, 63, 16, 50, 2, 33, 45, 10, 58, 29, 37, 4, 54, 21 };

inline uint32_t rotl(uint32_t v, int s)
{
    return (v << s) | (v >> (32 - s));
}

inline uint32_t load32(const uint8_t* p)
{
    return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

inline void store32(uint8_t* p, uint32_t v)
{
    p[0] = uint8_t(v);
    p[1] = uint8_t(v >> 8);
    p[2] = uint8_t(v >> 16);
    p[3] = uint8_t(v >> 24);
}

void wipe(void* p, size_t n)
{
    volatile uint8_t* v = static_cast<volatile uint8_t*>(p);
    while (n--)
        *v++ = 0;
}

} // namespace

void MD5::md5_init(md5_state* state)
{
    state->count = 0;
    state->abcd[0] = 0x67452301u;
    state->abcd[1] = 0xefcdab89u;
    state->abcd[2] = 0x98badcfeu;
    state->abcd[3] = 0x10325476u;
}

// The four auxiliary functions of RFC 1321, in forms with fewer operations.
#define F(x, y, z) ((z) ^ ((x) & ((y) ^ (z))))
#define G(x, y, z) ((y) ^ ((z) & ((x) ^ (y))))
#define H(x, y, z) ((x) ^ (y) ^ (z))
#define I(x, y, z) ((y) ^ ((x) | ~(z)))
#define STEP(f, a, b, c, d, xk, t, s) (a) = (b) + rotl((a) + f((b), (c), (d)) + (xk) + (t), (s))

void MD5::md5_process(md5_state* state, const uint8_t block[64])
{
    uint32_t x[16];
    for (int i = 0; i < 16; ++i)
        x[i] = load32(block + 4 * i);
    uint32_t a = state->abcd[0], b = state->abcd[1], c = state->abcd[2], d = state->abcd[3];

    STEP(F, a, b, c, d, x[0], 0xd76aa478u, 7);
    STEP(F, d, a, b, c, x[1], 0xe8c7b756u, 12);
    STEP(F, c, d, a, b, x[2], 0x242070dbu, 17);
    STEP(F, b, c, d, a, x[3], 0xc1bdceeeu, 22);
    STEP(F, a, b, c, d, x[4], 0xf57c0fafu, 7);
    STEP(F, d, a, b, c, x[5], 0x4787c62au, 12);
    STEP(F, c, d, a, b, x[6], 0xa8304613u, 17);
    STEP(F, b, c, d, a, x[7], 0xfd469501u, 22);
    STEP(F, a, b, c, d, x[8], 0x698098d8u, 7);
    STEP(F, d, a, b, c, x[9], 0x8b44f7afu, 12);
    STEP(F, c, d, a, b, x[10], 0xffff5bb1u, 17);
    STEP(F, b, c, d, a, x[11], 0x895cd7beu, 22);
    STEP(F, a, b, c, d, x[12], 0x6b901122u, 7);
    STEP(F, d, a, b, c, x[13], 0xfd987193u, 12);
    STEP(F, c, d, a, b, x[14], 0xa679438eu, 17);
    STEP(F, b, c, d, a, x[15], 0x49b40821u, 22);
    STEP(G, a, b, c, d, x[1], 0xf61e2562u, 5);
    STEP(G, d, a, b, c, x[6], 0xc040b340u, 9);
    STEP(G, c, d, a, b, x[11], 0x265e5a51u, 14);
    STEP(G, b, c, d, a, x[0], 0xe9b6c7aau, 20);
    STEP(G, a, b, c, d, x[5], 0xd62f105du, 5);
    STEP(G, d, a, b, c, x[10], 0x02441453u, 9);
    STEP(G, c, d, a, b, x[15], 0xd8a1e681u, 14);
    STEP(G, b, c, d, a, x[4], 0xe7d3fbc8u, 20);
    STEP(G, a, b, c, d, x[9], 0x21e1cde6u, 5);
    STEP(G, d, a, b, c, x[14], 0xc33707d6u, 9);
    STEP(G, c, d, a, b, x[3], 0xf4d50d87u, 14);
    STEP(G, b, c, d, a, x[8], 0x455a14edu, 20);
    STEP(G, a, b, c, d, x[13], 0xa9e3e905u, 5);
    STEP(G, d, a, b, c, x[2], 0xfcefa3f8u, 9);
    STEP(G, c, d, a, b, x[7], 0x676f02d9u, 14);
    STEP(G, b, c, d, a, x[12], 0x8d2a4c8au, 20);
    STEP(H, a, b, c, d, x[5], 0xfffa3942u, 4);
    STEP(H, d, a, b, c, x[8], 0x8771f681u, 11);
    STEP(H, c, d, a, b, x[11], 0x6d9d6122u, 16);
    STEP(H, b, c, d, a, x[14], 0xfde5380cu, 23);
    STEP(H, a, b, c, d, x[1], 0xa4beea44u, 4);
    STEP(H, d, a, b, c, x[4], 0x4bdecfa9u, 11);
    STEP(H, c, d, a, b, x[7], 0xf6bb4b60u, 16);
    STEP(H, b, c, d, a, x[10], 0xbebfbc70u, 23);
    STEP(H, a, b, c, d, x[13], 0x289b7ec6u, 4);
    STEP(H, d, a, b, c, x[0], 0xeaa127fau, 11);
    STEP(H, c, d, a, b, x[3], 0xd4ef3085u, 16);
    STEP(H, b, c, d, a, x[6], 0x04881d05u, 23);
    STEP(H, a, b, c, d, x[9], 0xd9d4d039u, 4);
    STEP(H, d, a, b, c, x[12], 0xe6db99e5u, 11);
    STEP(H, c, d, a, b, x[15], 0x1fa27cf8u, 16);
    STEP(H, b, c, d, a, x[2], 0xc4ac5665u, 23);
    STEP(I, a, b, c, d, x[0], 0xf4292244u, 6);
    STEP(I, d, a, b, c, x[7], 0x432aff97u, 10);
    STEP(I, c, d, a, b, x[14], 0xab9423a7u, 15);
    STEP(I, b, c, d, a, x[5], 0xfc93a039u, 21);
    STEP(I, a, b, c, d, x[12], 0x655b59c3u, 6);
    STEP(I, d, a, b, c, x[3], 0x8f0ccc92u, 10);
    STEP(I, c, d, a, b, x[10], 0xffeff47du, 15);
    STEP(I, b, c, d, a, x[1], 0x85845dd1u, 21);
    STEP(I, a, b, c, d, x[8], 0x6fa87e4fu, 6);
    STEP(I, d, a, b, c, x[15], 0xfe2ce6e0u, 10);
    STEP(I, c, d, a, b, x[6], 0xa3014314u, 15);
    STEP(I, b, c, d, a, x[13], 0x4e0811a1u, 21);
    STEP(I, a, b, c, d, x[4], 0xf7537e82u, 6);
    STEP(I, d, a, b, c, x[11], 0xbd3af235u, 10);
    STEP(I, c, d, a, b, x[2], 0x2ad7d2bbu, 15);
    STEP(I, b, c, d, a, x[9], 0xeb86d391u, 21);

    state->abcd[0] += a;
    state->abcd[1] += b;
    state->abcd[2] += c;
    state->abcd[3] += d;
}

#undef STEP
#undef F
#undef G
#undef H
#undef I

void MD5::md5_append(md5_state* state, const uint8_t* data, size_t length)
{
    if (!data || length == 0)
        return;
    size_t used = size_t(state->count % 64);
    state->count += length;
    if (used) {
        const size_t take = length < 64 - used ? length : 64 - used;
        std::memcpy(state->buf + used, data, take);
        data += take;
        length -= take;
        if (used + take < 64)
            return;
        md5_process(state, state->buf);
    }
    for (; length >= 64; data += 64, length -= 64)
        md5_process(state, data);
    if (length)
        std::memcpy(state->buf, data, length);
}

void MD5::md5_finish(md5_state* state, uint8_t digest[16])
{
    static const uint8_t kPad[64] = { 0x80 };
    uint8_t bits[8];
    const uint64_t bitCount = state->count * 8;
    for (int i = 0; i < 8; ++i)
        bits[i] = uint8_t(bitCount >> (8 * i));
    // Pad to 56 bytes modulo 64, then the message length in bits, little-endian.
    const size_t used = size_t(state->count % 64);
    md5_append(state, kPad, used < 56 ? 56 - used : 120 - used);
    md5_append(state, bits, 8);
    for (int i = 0; i < 4; ++i)
        store32(digest + 4 * i, state->abcd[i]);
}

void MD5::get_md5_hash(const uint8_t* data, size_t length, uint8_t digest[16])
{
    md5_state state;
    md5_init(&state);
    md5_append(&state, data, length);
    md5_finish(&state, digest);
}

void MD5::hide(const uint8_t digest[16], uint8_t block[64], const uint8_t* w, const uint8_t* r)
{
    // Seeded per second on purpose: the same password in the same second gives the same block, also when
    // several threads make blocks at once (the seed and its draws are taken together).
    {
        static std::mutex drawing;
        std::lock_guard<std::mutex> lock(drawing);
        std::srand(unsigned(std::time(nullptr)));
        for (int i = 0; i < 64; ++i)
            block[i] = uint8_t(std::rand());
    }
    for (int i = 0; i < 16; ++i)
        block[w[i]] = uint8_t(block[r[i]] * i + digest[i]);
}

void MD5::recover(uint8_t digest[16], const uint8_t block[64], const uint8_t* w, const uint8_t* r)
{
    for (int i = 0; i < 16; ++i)
        digest[i] = uint8_t(block[w[i]] - block[r[i]] * i);
}

void MD5::encrypt_hash(const uint8_t digest[16], uint8_t block[64])
{
    if (digest && block)
        hide(digest, block, kWrite, kRead);
}

void MD5::decrypt_hash(uint8_t digest[16], const uint8_t block[64])
{
    if (digest && block)
        recover(digest, block, kWrite, kRead);
}

void MD5::i2c_encrypt_hash(const uint8_t digest[16], uint8_t block[64])
{
    encrypt_hash(digest, block);
}

void MD5::normalisedDigest(const char* password, uint8_t digest[16])
{
    uint8_t text[kPasswordLength];
    std::memset(text, '0', sizeof text);
    const size_t n = strnlen(password, kPasswordLength);
    std::memcpy(text, password, n);
    get_md5_hash(text, sizeof text, digest);
    wipe(text, sizeof text);
}

int MD5::matches(const uint8_t digest[16], const uint8_t block[64])
{
    uint8_t hidden[16];
    recover(hidden, block, kWrite, kRead);
    uint8_t diff = 0;
    for (int i = 0; i < 16; ++i) // all 16 bytes, whatever the first difference
        diff |= uint8_t(hidden[i] ^ digest[i]);
    wipe(hidden, sizeof hidden);
    return diff == 0 ? 1 : 0;
}

int MD5::encrypt(const char* password, uint8_t block[64])
{
    if (!password || !block)
        return 0;
    uint8_t digest[16];
    normalisedDigest(password, digest);
    encrypt_hash(digest, block);
    wipe(digest, sizeof digest);
    return 1;
}

int MD5::encrypt(const char* password, int length, uint8_t block[64])
{
    if (!password || !block || length < 1)
        return 0;
    uint8_t digest[16];
    get_md5_hash(reinterpret_cast<const uint8_t*>(password), size_t(length), digest);
    encrypt_hash(digest, block);
    wipe(digest, sizeof digest);
    return 1;
}

int MD5::check_pwd(const char* password, const uint8_t block[64])
{
    if (!password || !block)
        return 0;
    uint8_t digest[16];
    normalisedDigest(password, digest);
    const int ok = matches(digest, block);
    wipe(digest, sizeof digest);
    return ok;
}

int MD5::check_encryption(const char* password, int length, const uint8_t block[64])
{
    if (!password || !block || length < 1)
        return 0;
    uint8_t digest[16];
    get_md5_hash(reinterpret_cast<const uint8_t*>(password), size_t(length), digest);
    const int ok = matches(digest, block);
    wipe(digest, sizeof digest);
    return ok;
}
