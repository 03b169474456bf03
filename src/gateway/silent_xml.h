#pragma once

#include <libxml/xmlerror.h>

namespace tarn {

// libxml2 writes what it can't report elsewhere to stderr; nothing may land there.
class SilentXml {
public:
    SilentXml() : handler_(xmlStructuredError), context_(xmlStructuredErrorContext) {
        xmlSetStructuredErrorFunc(nullptr, [](void*, xmlErrorPtr) {});
    }
    ~SilentXml() { xmlSetStructuredErrorFunc(context_, handler_); }
    SilentXml(const SilentXml&) = delete;
    SilentXml& operator=(const SilentXml&) = delete;

private:
    xmlStructuredErrorFunc handler_;
    void* context_;
};

}  // namespace tarn
