// Byte stream of the host's project archive. Little-endian numbers, UTF-16 strings, counts of 16 or
// 32 bits. An archive lives in memory: reading and writing the file is the host's.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CString.h>

class EFV_API CArchive {
public:
    /// Writes at the end of `destino`, which must outlive the archive.
    explicit CArchive(std::vector<std::byte>& destino);

    /// Reads `origen` from its first byte; the bytes must outlive the archive.
    explicit CArchive(std::span<const std::byte> origen);

    bool IsStoring() const { return m_destino != nullptr; }
    bool IsLoading() const { return m_destino == nullptr; }

    /// Bytes not yet read; 0 when writing.
    std::size_t Restantes() const { return m_origen.size(); }

    CArchive& operator<<(std::uint8_t n);
    CArchive& operator<<(std::int16_t n);
    CArchive& operator<<(std::uint16_t n);
    CArchive& operator<<(std::int32_t n);
    CArchive& operator<<(std::uint32_t n);
    CArchive& operator<<(double d);

    /// The bytes FF FE FF, the length in UTF-16 units (one byte below 255; FF and 16 bits below FFFE
    /// hexadecimal; FF, FFFF and 32 bits), then the units.
    CArchive& operator<<(std::wstring_view cs);

    // Every read throws CArchiveException (end of file) when the bytes don't suffice; the variable then
    // keeps its value.
    CArchive& operator>>(std::uint8_t& n);
    CArchive& operator>>(std::int16_t& n);
    CArchive& operator>>(std::uint16_t& n);
    CArchive& operator>>(std::int32_t& n);
    CArchive& operator>>(std::uint32_t& n);
    CArchive& operator>>(double& d);

    /// Also reads a string without the marker bytes, as Windows-1252 text.
    CArchive& operator>>(CString& cs);

    /// 16 bits below FFFF hexadecimal, else FFFF and 32 bits.
    void WriteCount(std::size_t n);
    std::size_t ReadCount();

    /// The count, then the doubles; reading replaces the content.
    CArchive& operator<<(const CArray<double, double&>& ad);
    CArchive& operator>>(CArray<double, double&>& ad);

    CArchive& operator<<(const CStringArray& acs);
    CArchive& operator>>(CStringArray& acs);

    /// `cuantos` doubles without a count.
    void WriteDoubles(std::span<const double> ad);
    void ReadDoubles(std::span<double> ad);

private:
    template <class N>
    CArchive& Escribir(N n);
    template <class N>
    CArchive& Leer(N& n);
    void EscribirLongitud(std::size_t n);
    std::span<const std::byte> Tomar(std::size_t n, std::size_t tamanoUnidad = 1);

    std::vector<std::byte>* m_destino = nullptr;
    std::span<const std::byte> m_origen;
};
