/*
 * qgui services: operator password blocks.
 *
 * A password is normalised to exactly 15 bytes (cut after 15, or padded on the right
 * with "0"), hashed with MD5 (RFC 1321), and the 16-byte digest is hidden in a 64-byte
 * block of random bytes. Consequences that stored blocks rely on: "abc" and "abc000"
 * are the same password, and only the first 15 bytes count.
 *
 * The random bytes are drawn from the C library's rand() seeded with the current time
 * in seconds: two blocks made within the same second are equal, blocks made in
 * different seconds differ, and every block of a password passes check_pwd.
 */
#ifndef QGUI_XMD5_H
#define QGUI_XMD5_H

#include <qgui/types.h>

namespace XMD5 {

/** MD5 digest of \a length bytes at \a data into \a out (16 bytes). Null \a data or a
 *  negative length hash the empty input; a null \a out does nothing. */
QGUI_EXPORT void get_md5_hash(unsigned char* data, int length, unsigned char* out);

/** Hides the digest of the normalised \a password in \a block (64 bytes). Returns 1;
 *  0 (block untouched) for a null password or block. */
QGUI_EXPORT int encrypt(const char* password, unsigned char* block);

/** 1 if the normalised \a password matches the digest hidden in \a block (64 bytes), else 0;
 *  0 for a null password or block. Compares in constant time. */
QGUI_EXPORT int check_pwd(const char* password, const unsigned char* block);

/** Hides \a digest (16 bytes) in a fresh \a block (64 bytes). Null arguments do nothing. */
QGUI_EXPORT void encrypt_hash(const unsigned char* digest, unsigned char* block);

/** Recovers the digest (16 bytes) hidden in \a block (64 bytes). Null arguments do nothing. */
QGUI_EXPORT void decrypt_hash(unsigned char* digest, const unsigned char* block);

/** The same as encrypt_hash: the block is an ordinary password block, checked by check_pwd. */
QGUI_EXPORT void i2c_encrypt_hash(const unsigned char* digest, unsigned char* block);

} // namespace XMD5

#endif /* QGUI_XMD5_H */
