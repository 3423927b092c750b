// Whether this is a build with an address sanitizer, which reserves address space beyond any limit.
#pragma once

namespace efv::rpc {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kConSaneador = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool kConSaneador = true;
#else
inline constexpr bool kConSaneador = false;
#endif
#else
inline constexpr bool kConSaneador = false;
#endif

}  // namespace efv::rpc
