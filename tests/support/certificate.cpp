#include "tests/support/certificate.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <cstdio>
#include <memory>
#include <stdexcept>

namespace tarn::test {
namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;
using File = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

constexpr long daySeconds = 86'400;
constexpr long versionThree = 2;

void require(bool done) {
    if (!done) {
        throw std::runtime_error("no certificate could be made");
    }
}

void addExtension(X509* certificate, int kind, const std::string& value) {
    X509V3_CTX context{};
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> extension(
        X509V3_EXT_conf_nid(nullptr, &context, kind, value.c_str()), X509_EXTENSION_free);
    require(extension != nullptr && X509_add_ext(certificate, extension.get(), -1) == 1);
}

File opened(const std::string& name) {
    File file(std::fopen(name.c_str(), "w"), std::fclose);
    require(file != nullptr);
    return file;
}

}  // namespace

CertificateFiles makeCertificate(const std::string& folder, const std::string& name,
                                 const std::string& address, int days) {
    const Key key(EVP_EC_gen("P-256"), EVP_PKEY_free);
    const Certificate certificate(X509_new(), X509_free);
    require(key != nullptr && certificate != nullptr);
    X509* made = certificate.get();
    X509_set_version(made, versionThree);
    ASN1_INTEGER_set(X509_get_serialNumber(made), 1);
    X509_gmtime_adj(X509_getm_notBefore(made), -2 * daySeconds);
    X509_gmtime_adj(X509_getm_notAfter(made), (days - 1) * daySeconds);
    X509_set_pubkey(made, key.get());
    X509_NAME* subject = X509_get_subject_name(made);
    X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>(name.c_str()), -1, -1, 0);
    X509_set_issuer_name(made, subject);
    addExtension(made, NID_subject_alt_name, "IP:" + address);
    addExtension(made, NID_basic_constraints, "critical,CA:TRUE");
    require(X509_sign(made, key.get(), EVP_sha256()) != 0);
    CertificateFiles files{folder + "/" + name + ".crt", folder + "/" + name + ".key"};
    require(PEM_write_X509(opened(files.certificate).get(), made) == 1);
    require(PEM_write_PrivateKey(opened(files.key).get(), key.get(), nullptr, nullptr, 0, nullptr,
                                 nullptr) == 1);
    return files;
}

}  // namespace tarn::test
