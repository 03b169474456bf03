#include "desk/server_address.h"

#include <array>

#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::string_view folder = "/Kestomain";
constexpr std::string_view page = "/TarnEmissao.asp";
constexpr std::array<std::string_view, 2> schemes{"http://", "https://"};

bool endsAlike(std::string_view text, std::string_view end) {
    return asciiUpper(text).ends_with(asciiUpper(end));
}

// The scheme in small letters, nothing for any other.
std::string_view schemeOf(std::string_view address) {
    for (const std::string_view scheme : schemes) {
        if (asciiUpper(address.substr(0, scheme.size())) == asciiUpper(scheme)) {
            return scheme;
        }
    }
    return {};
}

bool hasHost(std::string_view server) {
    const std::string_view host = server.substr(server.find('@') + 1);
    return !host.empty() && host.front() != ':';
}

// A path without a query: that of a page is kept, a folder gets the page.
std::string withPage(std::string_view path) {
    while (path.ends_with('/')) {
        path.remove_suffix(1);
    }
    std::string whole(path);
    if (path.substr(path.rfind('/') + 1).find('.') != std::string_view::npos && !path.empty()) {
        return whole;
    }
    if (!endsAlike(path, folder)) {
        whole += folder;
    }
    return whole.append(page);
}

}  // namespace

ServerAddress serverAddress(const std::string& typed) {
    const std::string_view scheme = schemeOf(typed);
    if (scheme.empty()) {
        return {.url = {}, .refusal = "o endereço do servidor começa com http:// ou https://."};
    }
    const std::string_view rest = std::string_view(typed).substr(scheme.size());
    const std::string_view server = rest.substr(0, rest.find_first_of("/?#"));
    if (!hasHost(server)) {
        return {.url = {}, .refusal = "falta o nome do servidor."};
    }
    const std::string_view place = rest.substr(server.size());
    if (place.find('#') != std::string_view::npos || blankControls(typed) != typed ||
        typed.find(' ') != std::string::npos) {
        return {.url = {}, .refusal = "o endereço tem um espaço ou um \"#\"."};
    }
    std::string url(scheme);
    url += server;
    const std::size_t mark = place.find('?');
    if (mark == std::string_view::npos) {
        return {.url = url.append(withPage(place)).append("?"), .refusal = {}};
    }
    if (mark + 1 < place.size() && !place.ends_with('&')) {
        return {.url = {}, .refusal = "depois do \"?\" não vem nada: o programa põe o pedido ali."};
    }
    return {.url = url.append(place), .refusal = {}};
}

std::string shownAddress(std::string_view url) {
    const std::string_view scheme = schemeOf(url);
    std::string_view rest = url.substr(scheme.size());
    const std::size_t path = rest.find_first_of("/?#");
    const std::size_t user = rest.substr(0, path).rfind('@');
    if (user != std::string_view::npos) {
        rest.remove_prefix(user + 1);
    }
    rest = rest.substr(0, rest.find('?'));
    const std::string usual = std::string(folder) + std::string(page);
    if (endsAlike(rest, usual)) {
        rest.remove_suffix(usual.size());
    }
    return blankControls(std::string(scheme) + std::string(rest));
}

}  // namespace tarn
