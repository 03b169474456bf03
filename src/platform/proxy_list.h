// The settings for proxies as Windows writes them.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

// The proxy for an address, as libcurl takes it ("host:port", with a scheme where one
// stands); empty where none is to be used. `proxies` is "host:port" or "http=host:port;
// https=host:port;socks=host:port"; `bypass` holds the hosts that are asked directly, with
// "*" for any text and "<local>" for names without a point.
std::string proxyFor(std::string_view address, std::string_view proxies, std::string_view bypass);

}  // namespace tarn
