// Certificates made for a test.
#pragma once

#include <string>

namespace tarn::test {

struct CertificateFiles {
    std::string certificate;
    std::string key;
};

// Signed by itself, for an address of this machine ("127.0.0.1"), valid from yesterday for
// so many days; fewer than one: over by now. Written into `folder` as `name`.
CertificateFiles makeCertificate(const std::string& folder, const std::string& name,
                                 const std::string& address = "127.0.0.1", int days = 2);

}  // namespace tarn::test
