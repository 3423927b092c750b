#include <quorvel/framework/CArchive.h>

#include <algorithm>
#include <array>
#include <bit>

#include <quorvel/framework/CException.h>

#include "platform/texto/texto.h"

namespace {

constexpr std::uint8_t kMarca8 = 0xFF;
constexpr std::uint16_t kMarcaUnicode = 0xFFFE;
constexpr std::uint16_t kMarca16 = 0xFFFF;

// Little-endian bytes of a number, whatever the machine's order.
template <class N>
std::array<std::byte, sizeof(N)> Bytes(N n)
{
    auto bytes = std::bit_cast<std::array<std::byte, sizeof(N)>>(n);
    if constexpr (std::endian::native == std::endian::big)
        std::ranges::reverse(bytes);
    return bytes;
}

template <class N>
N Numero(std::span<const std::byte> origen)
{
    std::array<std::byte, sizeof(N)> bytes;
    std::ranges::copy(origen, bytes.begin());
    if constexpr (std::endian::native == std::endian::big)
        std::ranges::reverse(bytes);
    return std::bit_cast<N>(bytes);
}

[[noreturn]] void Fallar(CArchiveException::Causa causa)
{
    throw CArchiveException(causa);
}

struct LongitudCadena {
    std::size_t unidades;
    bool unicode;
};

// Length behind the first byte of a long form: 16 bits, or the 16-bit mark and 32 bits.
std::size_t LongitudDe16(CArchive& ar, std::uint16_t longitud)
{
    if (longitud != kMarca16)
        return longitud;
    std::uint32_t larga = 0;
    ar >> larga;
    return larga;
}

LongitudCadena LeerLongitud(CArchive& ar)
{
    std::uint8_t corta = 0;
    ar >> corta;
    if (corta != kMarca8)
        return {corta, false};
    std::uint16_t media = 0;
    ar >> media;
    if (media != kMarcaUnicode)
        return {LongitudDe16(ar, media), false};
    ar >> corta;
    if (corta != kMarca8)
        return {corta, true};
    ar >> media;
    return {LongitudDe16(ar, media), true};
}

}  // namespace

CArchive::CArchive(std::vector<std::byte>& destino) : m_destino(&destino) {}

CArchive::CArchive(std::span<const std::byte> origen) : m_origen(origen) {}

template <class N>
CArchive& CArchive::Escribir(N n)
{
    if (m_destino == nullptr)
        Fallar(CArchiveException::Causa::soloLectura);
    const auto bytes = Bytes(n);
    m_destino->insert(m_destino->end(), bytes.begin(), bytes.end());
    return *this;
}

std::span<const std::byte> CArchive::Tomar(std::size_t n, std::size_t tamanoUnidad)
{
    if (m_destino != nullptr)
        Fallar(CArchiveException::Causa::soloEscritura);
    // A count is believed only as far as the stream has bytes.
    if (n > m_origen.size() / tamanoUnidad)
        Fallar(CArchiveException::Causa::finDeFichero);
    const auto tomados = m_origen.first(n * tamanoUnidad);
    m_origen = m_origen.subspan(tomados.size());
    return tomados;
}

template <class N>
CArchive& CArchive::Leer(N& n)
{
    n = Numero<N>(Tomar(sizeof(N)));
    return *this;
}

CArchive& CArchive::operator<<(std::uint8_t n)
{
    return Escribir(n);
}
CArchive& CArchive::operator<<(std::int16_t n)
{
    return Escribir(n);
}
CArchive& CArchive::operator<<(std::uint16_t n)
{
    return Escribir(n);
}
CArchive& CArchive::operator<<(std::int32_t n)
{
    return Escribir(n);
}
CArchive& CArchive::operator<<(std::uint32_t n)
{
    return Escribir(n);
}
CArchive& CArchive::operator<<(double d)
{
    return Escribir(d);
}
CArchive& CArchive::operator>>(std::uint8_t& n)
{
    return Leer(n);
}
CArchive& CArchive::operator>>(std::int16_t& n)
{
    return Leer(n);
}
CArchive& CArchive::operator>>(std::uint16_t& n)
{
    return Leer(n);
}
CArchive& CArchive::operator>>(std::int32_t& n)
{
    return Leer(n);
}
CArchive& CArchive::operator>>(std::uint32_t& n)
{
    return Leer(n);
}
CArchive& CArchive::operator>>(double& d)
{
    return Leer(d);
}

void CArchive::EscribirLongitud(std::size_t n)
{
    *this << kMarca8 << kMarcaUnicode;
    if (n < kMarca8) {
        *this << static_cast<std::uint8_t>(n);
    } else if (n < kMarcaUnicode) {
        *this << kMarca8 << static_cast<std::uint16_t>(n);
    } else {
        *this << kMarca8 << kMarca16 << static_cast<std::uint32_t>(n);
    }
}

CArchive& CArchive::operator<<(std::wstring_view cs)
{
    const std::u16string unidades = efv::texto::AUtf16(cs);
    EscribirLongitud(unidades.size());
    for (char16_t u : unidades)
        *this << static_cast<std::uint16_t>(u);
    return *this;
}

CArchive& CArchive::operator>>(CString& cs)
{
    const auto [longitud, unicode] = LeerLongitud(*this);
    if (unicode) {
        const auto bytes = Tomar(longitud, 2);
        std::u16string unidades(longitud, u'\0');
        for (std::size_t i = 0; i < longitud; ++i)
            unidades[i] = static_cast<char16_t>(Numero<std::uint16_t>(bytes.subspan(2 * i, 2)));
        cs = efv::texto::DeUtf16(unidades);
    } else {
        const auto bytes = Tomar(longitud);
        cs = efv::texto::DeWindows1252({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }
    return *this;
}

void CArchive::WriteCount(std::size_t n)
{
    if (n < kMarca16)
        *this << static_cast<std::uint16_t>(n);
    else
        *this << kMarca16 << static_cast<std::uint32_t>(n);
}

std::size_t CArchive::ReadCount()
{
    std::uint16_t corto = 0;
    *this >> corto;
    return LongitudDe16(*this, corto);
}

CArchive& CArchive::operator<<(const CArray<double, double&>& ad)
{
    WriteCount(static_cast<std::size_t>(ad.GetSize()));
    WriteDoubles({ad.GetData(), static_cast<std::size_t>(ad.GetSize())});
    return *this;
}

CArchive& CArchive::operator>>(CArray<double, double&>& ad)
{
    const std::size_t n = ReadCount();
    if (n > Restantes() / sizeof(double))
        Fallar(CArchiveException::Causa::finDeFichero);
    ad.SetSize(static_cast<std::ptrdiff_t>(n));
    ReadDoubles({ad.GetData(), n});
    return *this;
}

CArchive& CArchive::operator<<(const CStringArray& acs)
{
    WriteCount(static_cast<std::size_t>(acs.GetSize()));
    for (const CString& cs : acs)
        *this << cs;
    return *this;
}

CArchive& CArchive::operator>>(CStringArray& acs)
{
    const std::size_t n = ReadCount();
    // The shortest string takes one byte.
    if (n > Restantes())
        Fallar(CArchiveException::Causa::finDeFichero);
    acs.RemoveAll();
    for (std::size_t i = 0; i < n; ++i) {
        CString cs;
        *this >> cs;
        acs.Add(cs);
    }
    return *this;
}

void CArchive::WriteDoubles(std::span<const double> ad)
{
    for (double d : ad)
        *this << d;
}

void CArchive::ReadDoubles(std::span<double> ad)
{
    const auto bytes = Tomar(ad.size(), sizeof(double));
    for (std::size_t i = 0; i < ad.size(); ++i)
        ad[i] = Numero<double>(bytes.subspan(i * sizeof(double), sizeof(double)));
}
