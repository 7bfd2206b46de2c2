// The calls by which qpdf has GnuTLS hash and cipher, answered by Nettle, on which GnuTLS stands
// for just that. The rest of GnuTLS takes longer to begin than a dozen labels to be composed.
#include <gnutls/crypto.h>
#include <gnutls/gnutls.h>
#include <nettle/arcfour.h>
#include <nettle/cbc.h>
#include <nettle/nettle-meta.h>
#include <sys/random.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

struct HashRow {
  gnutls_digest_algorithm_t number;
  const nettle_hash* hash;
};
constexpr HashRow kHashes[] = {
    {GNUTLS_DIG_MD5, &nettle_md5},
    {GNUTLS_DIG_SHA256, &nettle_sha256},
    {GNUTLS_DIG_SHA384, &nettle_sha384},
    {GNUTLS_DIG_SHA512, &nettle_sha512},
};

struct CipherRow {
  gnutls_cipher_algorithm_t number;
  const nettle_cipher* cipher;
};
// Of the lengths that a PDF's key has.
constexpr CipherRow kBlockCiphers[] = {
    {GNUTLS_CIPHER_AES_128_CBC, &nettle_aes128},
    {GNUTLS_CIPHER_AES_256_CBC, &nettle_aes256},
};

// Memory of an algorithm, of the size and for as long as it says.
using Context = std::vector<std::max_align_t>;

Context contextOf(std::size_t bytes) {
  return Context((bytes + sizeof(std::max_align_t) - 1) / sizeof(std::max_align_t));
}

template <typename Row, std::size_t Count, typename Number>
const Row* rowOf(const Row (&rows)[Count], Number number) {
  const Row* const row =
      std::find_if(rows, rows + Count, [number](const Row& each) { return each.number == number; });
  return row != rows + Count ? row : nullptr;
}

}  // namespace

// The names under which callers hold these.
struct hash_hd_st {
  const nettle_hash& algorithm;
  Context context;
};

struct api_cipher_hd_st {
  virtual ~api_cipher_hd_st() = default;
  // Each goes on where the call before ended. No for bytes that are no whole number of blocks.
  virtual bool encrypt(const std::uint8_t* from, std::size_t size, std::uint8_t* to) = 0;
  virtual bool decrypt(const std::uint8_t* from, std::size_t size, std::uint8_t* to) = 0;
};

namespace {

// RC4, by another name; the same both ways.
class StreamCipher final : public api_cipher_hd_st {
 public:
  explicit StreamCipher(const gnutls_datum_t& key) {
    nettle_arcfour_set_key(&mContext, key.size, key.data);
  }
  bool encrypt(const std::uint8_t* from, std::size_t size, std::uint8_t* to) override {
    nettle_arcfour_crypt(&mContext, size, to, from);
    return true;
  }
  bool decrypt(const std::uint8_t* from, std::size_t size, std::uint8_t* to) override {
    return encrypt(from, size, to);
  }

 private:
  arcfour_ctx mContext{};
};

// Each block chained to the one before.
class ChainedCipher final : public api_cipher_hd_st {
 public:
  ChainedCipher(const nettle_cipher& cipher, const gnutls_datum_t& key, const gnutls_datum_t& chain)
      : mCipher(cipher),
        mEncryption(contextOf(cipher.context_size)),
        mDecryption(contextOf(cipher.context_size)),
        mChain(chain.data, chain.data + chain.size) {
    cipher.set_encrypt_key(mEncryption.data(), key.data);
    cipher.set_decrypt_key(mDecryption.data(), key.data);
  }
  bool encrypt(const std::uint8_t* from, std::size_t size, std::uint8_t* to) override {
    if (size % mCipher.block_size != 0) return false;
    nettle_cbc_encrypt(mEncryption.data(), mCipher.encrypt, mCipher.block_size, mChain.data(), size,
                       to, from);
    return true;
  }
  bool decrypt(const std::uint8_t* from, std::size_t size, std::uint8_t* to) override {
    if (size % mCipher.block_size != 0) return false;
    nettle_cbc_decrypt(mDecryption.data(), mCipher.decrypt, mCipher.block_size, mChain.data(), size,
                       to, from);
    return true;
  }

 private:
  const nettle_cipher& mCipher;
  Context mEncryption;
  Context mDecryption;
  std::vector<std::uint8_t> mChain;  // the block before
};

int startCipher(gnutls_cipher_hd_t& handle, gnutls_cipher_algorithm_t number,
                const gnutls_datum_t& key, const gnutls_datum_t* chain) {
  if (number == GNUTLS_CIPHER_ARCFOUR_128) {
    if (key.size < ARCFOUR_MIN_KEY_SIZE || key.size > ARCFOUR_MAX_KEY_SIZE)
      return GNUTLS_E_INVALID_REQUEST;
    handle = new StreamCipher(key);
    return GNUTLS_E_SUCCESS;
  }
  const CipherRow* const row = rowOf(kBlockCiphers, number);
  if (row == nullptr) return GNUTLS_E_UNKNOWN_CIPHER_TYPE;
  const bool isSized = key.size == row->cipher->key_size && chain != nullptr &&
                       chain->size == row->cipher->block_size;
  if (!isSized) return GNUTLS_E_INVALID_REQUEST;
  handle = new ChainedCipher(*row->cipher, key, *chain);
  return GNUTLS_E_SUCCESS;
}

const std::uint8_t* bytesAt(const void* memory) { return static_cast<const std::uint8_t*>(memory); }

}  // namespace

extern "C" {

int gnutls_hash_init(gnutls_hash_hd_t* handle, gnutls_digest_algorithm_t number) {
  const HashRow* const row = rowOf(kHashes, number);
  if (row == nullptr) return GNUTLS_E_UNKNOWN_HASH_ALGORITHM;
  *handle = new hash_hd_st{*row->hash, contextOf(row->hash->context_size)};
  (*handle)->algorithm.init((*handle)->context.data());
  return GNUTLS_E_SUCCESS;
}

int gnutls_hash(gnutls_hash_hd_t handle, const void* bytes, std::size_t size) {
  handle->algorithm.update(handle->context.data(), size, bytesAt(bytes));
  return GNUTLS_E_SUCCESS;
}

void gnutls_hash_deinit(gnutls_hash_hd_t handle, void* digest) {
  const std::unique_ptr<hash_hd_st> hash(handle);
  if (digest == nullptr) return;
  hash->algorithm.digest(hash->context.data(), hash->algorithm.digest_size,
                         static_cast<std::uint8_t*>(digest));
}

std::size_t gnutls_cipher_get_key_size(gnutls_cipher_algorithm_t number) {
  const CipherRow* const row = rowOf(kBlockCiphers, number);
  return row != nullptr ? row->cipher->key_size : 0;
}

int gnutls_cipher_init(gnutls_cipher_hd_t* handle, gnutls_cipher_algorithm_t number,
                       const gnutls_datum_t* key, const gnutls_datum_t* chain) {
  return startCipher(*handle, number, *key, chain);
}

int gnutls_cipher_encrypt2(gnutls_cipher_hd_t handle, const void* from, std::size_t size, void* to,
                           std::size_t) {
  return handle->encrypt(bytesAt(from), size, static_cast<std::uint8_t*>(to))
             ? GNUTLS_E_SUCCESS
             : GNUTLS_E_INVALID_REQUEST;
}

int gnutls_cipher_decrypt2(gnutls_cipher_hd_t handle, const void* from, std::size_t size, void* to,
                           std::size_t) {
  return handle->decrypt(bytesAt(from), size, static_cast<std::uint8_t*>(to))
             ? GNUTLS_E_SUCCESS
             : GNUTLS_E_INVALID_REQUEST;
}

void gnutls_cipher_deinit(gnutls_cipher_hd_t handle) { delete handle; }

int gnutls_rnd(gnutls_rnd_level_t, void* bytes, std::size_t size) {
  // The system gives no more at once.
  constexpr std::size_t kMost = 256;
  auto* to = static_cast<std::uint8_t*>(bytes);
  for (std::size_t done = 0; done < size; done += std::min(kMost, size - done))
    if (::getentropy(to + done, std::min(kMost, size - done)) != 0) return GNUTLS_E_RANDOM_FAILED;
  return GNUTLS_E_SUCCESS;
}

const char* gnutls_strerror(int) { return "unknown here"; }

}  // extern "C"
