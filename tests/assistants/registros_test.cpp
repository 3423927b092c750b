// The archives of the two records. Bytes and values come from vectores.py, which packs them by itself.
#include <iomanip>
#include <map>
#include <sstream>

#include <gtest/gtest.h>

#include <quorvel/assistants.h>
#include <quorvel/framework.h>
#include <quorvel/registros.h>

#include "comun/ficheros.h"
#include "platform/texto/texto.h"

namespace {

using Bytes = std::vector<std::byte>;

struct CampoEsperado {
    std::string nombre;
    int iDesde;
    std::string valor, defecto;
};

struct Modelo {
    std::vector<CampoEsperado> campos;  // in archive order
    std::map<int, Bytes> archivos;      // by schema
};

Bytes DesdeHexadecimal(const std::string& texto)
{
    Bytes bytes;
    for (std::size_t i = 0; i < texto.size(); i += 2)
        bytes.push_back(static_cast<std::byte>(std::stoi(texto.substr(i, 2), nullptr, 16)));
    return bytes;
}

std::map<std::string, Modelo> LeerModelos()
{
    std::map<std::string, Modelo> modelos;
    for (const auto& fila : efv::pruebas::LeerCsv("assistants/vectores.csv")) {
        if (fila[0] == "campo")
            modelos[fila[1]].campos.push_back({fila[2], std::stoi(fila[3]), fila[4], fila[5]});
        else if (fila[0] == "archivo")
            modelos[fila[1]].archivos[std::stoi(fila[2])] = DesdeHexadecimal(fila[3]);
    }
    return modelos;
}

// A field in the form of the vectors.
struct EnTexto {
    std::string operator()(const int* i) const { return std::to_string(*i); }
    std::string operator()(const auto&) const { return "?"; }  // neither record has another kind of field
    std::string operator()(const double* d) const { return Numero(*d); }
    std::string operator()(const CString* cs) const { return efv::CadenaUtf8(*cs); }
    std::string operator()(const CArray<double, double&>* ad) const
    {
        return Unir(*ad, [](double d) { return Numero(d); });
    }
    std::string operator()(std::span<const double> ad) const
    {
        return Unir(ad, [](double d) { return Numero(d); });
    }
    std::string operator()(const CStringArray* acs) const
    {
        return Unir(*acs, [](const CString& cs) { return efv::CadenaUtf8(cs); });
    }

private:
    static std::string Numero(double d)
    {
        std::ostringstream s;
        s << std::setprecision(17) << d;
        return s.str() + (s.str().find('.') == std::string::npos ? ".0" : "");
    }
    static std::string Unir(const auto& lista, auto texto)
    {
        std::string todo;
        for (const auto& valor : lista)
            todo += (todo.empty() ? "" : "/") + texto(valor);
        return todo;
    }
};

std::map<std::string, std::string> Valores(const CObject& registro)
{
    std::map<std::string, std::string> valores;
    for (const auto& campo : efv::CamposDeRegistro(registro))
        valores[std::string(campo.nombre)] = std::visit(EnTexto{}, campo.valor);
    return valores;
}

std::unique_ptr<CObject> Leer(const std::string& clase, std::span<const std::byte> bytes)
{
    auto registro = CRuntimeClass::FromName(clase)->CreateObject();
    CArchive ar(bytes);
    registro->Serialize(ar);
    return registro;
}

Bytes Archivar(CObject& registro)
{
    Bytes bytes;
    CArchive ar(bytes);
    registro.Serialize(ar);
    return bytes;
}

TEST(RegistrosAsistentes, CadaSchemaTraeLoSuyoYElRestoQuedaPorDefecto)
{
    const auto modelos = LeerModelos();
    ASSERT_EQ(modelos.size(), 2U);
    for (const auto& [clase, modelo] : modelos) {
        ASSERT_EQ(Valores(*CRuntimeClass::FromName(clase)->CreateObject()).size(), modelo.campos.size());
        for (const auto& [iSchema, bytes] : modelo.archivos) {
            const auto leidos = Valores(*Leer(clase, bytes));
            for (const auto& campo : modelo.campos)
                EXPECT_EQ(leidos.at(campo.nombre), campo.iDesde <= iSchema ? campo.valor : campo.defecto)
                    << clase << " " << iSchema << " " << campo.nombre;
        }
    }
}

TEST(RegistrosAsistentes, SeEscribeElUltimoSchemaYUnoPosteriorSeLee)
{
    for (const auto& [clase, modelo] : LeerModelos()) {
        const Bytes& actual = modelo.archivos.rbegin()->second;
        EXPECT_EQ(Archivar(*Leer(clase, actual)), actual) << clase;
        Bytes posterior = actual;
        posterior[0] = std::byte{99};
        posterior.push_back(std::byte{7});
        EXPECT_EQ(Archivar(*Leer(clase, posterior)), actual) << clase;
    }
}

TEST(RegistrosAsistentes, CualquierCorteEsFinDeArchivo)
{
    for (const auto& [clase, modelo] : LeerModelos()) {
        for (const auto& [iSchema, bytes] : modelo.archivos) {
            const std::size_t paso = bytes.size() > 2000 ? 61 : 1;
            for (std::size_t n = 0; n < bytes.size(); n += paso)
                EXPECT_THROW(Leer(clase, std::span(bytes).first(n)), CArchiveException)
                    << clase << iSchema << n;
        }
    }
}

TEST(RegistrosAsistentes, ReiniciarSoloVaciaLosReceptores)
{
    const auto modelos = LeerModelos();
    const auto leido = Leer("CSFVAsistenteAislada", modelos.at("CSFVAsistenteAislada").archivos.at(6));
    auto& registro = dynamic_cast<CSFVAsistenteAislada&>(*leido);
    auto esperados = Valores(registro);
    for (const char* lista : {"adCantidad", "acsModelo", "adHorasDia", "adHorario"})
        esperados[lista].clear();
    registro.Reset();
    EXPECT_EQ(Valores(registro), esperados);
}

TEST(RegistrosAsistentes, CopiarUnaListaSustituyeLaOtra)
{
    CSFVAsistenteAislada registro;
    CStringArray destino{L"viejo"};
    registro.CopyArray(CStringArray{L"a", L"b"}, destino);
    EXPECT_EQ(destino, (CStringArray{L"a", L"b"}));
    CUIntArray enteros{7};
    registro.CopyArray(CUIntArray{}, enteros);
    EXPECT_TRUE(enteros.IsEmpty());
    registro.CopyArray(CArray<double, double&>{1.5}, registro.adHorario);
    EXPECT_EQ(registro.adHorario, (CArray<double, double&>{1.5}));
}

}  // namespace
