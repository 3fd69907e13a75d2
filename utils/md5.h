#ifndef QGUI_MD5_H
#define QGUI_MD5_H

#include <cstddef>
#include <cstdint>

/**
 * MD5 (RFC 1321) and the operator password blocks built on it.
 *
 * Password block: 64 bytes, 48 of them random; the 16 digest bytes are written at
 * the positions of the write table W, each disguised with the byte at the matching
 * position of the read table R: block[W[i]] = block[R[i]] * i + digest[i] (mod 256).
 * W and R are disjoint, so no byte that a step reads is written by a later step and
 * the digest can be recovered: digest[i] = block[W[i]] - block[R[i]] * i (mod 256).
 */
class MD5 {
public:
    struct md5_state {
        uint64_t count = 0; ///< bytes hashed so far
        uint32_t abcd[4] = {};
        uint8_t buf[64] = {}; ///< bytes not yet processed (count % 64 of them)
    };

    static void md5_init(md5_state* state);
    static void md5_append(md5_state* state, const uint8_t* data, size_t length);
    static void md5_finish(md5_state* state, uint8_t digest[16]);
    /** Runs the compression function over one 64-byte block. */
    static void md5_process(md5_state* state, const uint8_t block[64]);

    static void get_md5_hash(const uint8_t* data, size_t length, uint8_t digest[16]);

    /** Normalises \a password to 15 bytes (cut, or padded with "0"), hashes it and hides
     *  the digest in \a block. 1, or 0 for a null argument. */
    static int encrypt(const char* password, uint8_t block[64]);
    /** Hashes exactly \a length bytes of \a password (no normalisation) into a block.
     *  1, or 0 for a null pointer or a length below 1. */
    static int encrypt(const char* password, int length, uint8_t block[64]);
    /** 1 if the normalised \a password is the one hidden in \a block, else 0. */
    static int check_pwd(const char* password, const uint8_t block[64]);
    /** 1 if exactly \a length bytes of \a password hash to the digest in \a block, else 0
     *  (also for a null pointer or a length below 1). */
    static int check_encryption(const char* password, int length, const uint8_t block[64]);

    static void encrypt_hash(const uint8_t digest[16], uint8_t block[64]);
    static void decrypt_hash(uint8_t digest[16], const uint8_t block[64]);
    /** Writes an ordinary block (the ordinary tables), which check_pwd accepts. */
    static void i2c_encrypt_hash(const uint8_t digest[16], uint8_t block[64]);

    /** Length of a normalised password. */
    static constexpr int kPasswordLength = 15;

private:
    static void hide(const uint8_t digest[16], uint8_t block[64], const uint8_t* w, const uint8_t* r);
    static void recover(uint8_t digest[16], const uint8_t block[64], const uint8_t* w, const uint8_t* r);
    static void normalisedDigest(const char* password, uint8_t digest[16]);
    static int matches(const uint8_t digest[16], const uint8_t block[64]);
};

#endif // QGUI_MD5_H
