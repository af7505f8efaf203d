#include "platform/values/Sha256.h"

#include "platform/values/CheckedSum.h"

#include <openssl/evp.h>

namespace orlen {

namespace {

struct Release {
    void operator()(EVP_MD* method) const { EVP_MD_free(method); }
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

/// Looked up once: fetching it by name each time costs more than hashing a small file.
const EVP_MD* method()
{
    static const std::unique_ptr<EVP_MD, Release> fetched(EVP_MD_fetch(nullptr, "SHA256", nullptr));
    return fetched.get();
}

/// A crypto library without SHA-256 is broken; continuing would call different files identical.
void require(int outcome)
{
    if (outcome != 1)
        fatalError("the crypto library cannot compute SHA-256");
}

} // namespace

struct Sha256::Context {
    std::unique_ptr<EVP_MD_CTX, Release> state{EVP_MD_CTX_new()};

    void begin() const { require(EVP_DigestInit_ex2(state.get(), method(), nullptr)); }
};

Sha256::Sha256() : m_context(std::make_unique<Context>())
{
    m_context->begin();
}

Sha256::~Sha256() = default;

void Sha256::update(std::span<const std::byte> bytes)
{
    require(EVP_DigestUpdate(m_context->state.get(), bytes.data(), bytes.size()));
}

Digest Sha256::finish()
{
    Digest digest{};
    require(
        EVP_DigestFinal_ex(m_context->state.get(), reinterpret_cast<unsigned char*>(digest.data()), nullptr));
    m_context->begin();
    return digest;
}

} // namespace orlen
