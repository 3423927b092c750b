// The compiled part of {fmt}, out of its own headers: a command that carries it needs no library of C++ beside
// it.
#include <fmt/format-inl.h>

FMT_BEGIN_NAMESPACE
namespace detail {

template locale_ref::locale_ref(const std::locale& loc);
template std::locale locale_ref::get<std::locale>() const;
template thousands_sep_result<char> thousands_sep_impl(locale_ref);
template thousands_sep_result<wchar_t> thousands_sep_impl(locale_ref);
template char decimal_point_impl(locale_ref);
template wchar_t decimal_point_impl(locale_ref);
template dragonbox::decimal_fp<float> dragonbox::to_decimal(float x) noexcept;
template dragonbox::decimal_fp<double> dragonbox::to_decimal(double x) noexcept;
template void buffer<char>::append(const char*, const char*);
template void buffer<wchar_t>::append(const wchar_t*, const wchar_t*);

}  // namespace detail
FMT_END_NAMESPACE
