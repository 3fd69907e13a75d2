#include <qgui/xmd5.h>

#include "utils/md5.h"

namespace XMD5 {

void get_md5_hash(unsigned char* data, int length, unsigned char* out)
{
    if (!out)
        return;
    MD5::get_md5_hash(data, data && length > 0 ? size_t(length) : 0, out);
}

int encrypt(const char* password, unsigned char* block)
{
    return MD5::encrypt(password, block);
}

int check_pwd(const char* password, const unsigned char* block)
{
    return MD5::check_pwd(password, block);
}

void encrypt_hash(const unsigned char* digest, unsigned char* block)
{
    MD5::encrypt_hash(digest, block);
}

void decrypt_hash(unsigned char* digest, const unsigned char* block)
{
    MD5::decrypt_hash(digest, block);
}

void i2c_encrypt_hash(const unsigned char* digest, unsigned char* block)
{
    MD5::i2c_encrypt_hash(digest, block);
}

} // namespace XMD5
