// A catalogue in a file of its own, edited by scripts through the viewer.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include <quorvel/catalogues.h>
#include <quorvel/frame.h>

#include "comun/ficheros.h"
#include "comun/guion.h"

namespace efv::pruebas {

/// The file has one family with one model, whose attributes a test gives.
class FicheroCatalogo {
public:
    FicheroCatalogo(std::string nombre, int (*editar)(int)) : m_nombre(std::move(nombre)), m_editar(editar)
    {
        phSetPathHE5BD((CadenaDesdeUtf8(m_carpeta.Ruta().string()) + L"/").c_str());
    }
    ~FicheroCatalogo() { phSetPathHE5BD(L""); }
    FicheroCatalogo(const FicheroCatalogo&) = delete;
    FicheroCatalogo& operator=(const FicheroCatalogo&) = delete;

    /// @return the file's path.
    CString Modelo(const std::string& atributos)
    {
        return m_carpeta.Escribir(m_nombre, "<Q><TablaFamilias><Familia nombre='F'><Modelo " + atributos +
                                                "/></Familia></TablaFamilias></Q>");
    }

    CString Fichero(const std::string& nombre, const std::string& texto) const
    {
        return m_carpeta.Escribir(nombre, texto);
    }

    /// Manages the catalogue: edits its model by `pasos` of the dialog `clase` and accepts the viewer.
    void Editar(Guion& guion, const char* clase, std::vector<ui::Paso> pasos)
    {
        guion.presentador.guiones.push_front({clase, std::move(pasos)});
        Visor(guion, {paso::Elegir{"arbol", 1}, paso::Pulsar{"Editar"}, paso::Pulsar{"OK"}});
    }

    void Visor(Guion& guion, std::vector<ui::Paso> pasos)
    {
        guion.presentador.guiones.push_front({"CDlgVisorXML", std::move(pasos)});
        EXPECT_EQ(m_editar(0), 1);
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
    }

    /// Value of an attribute in the file, of its last element that has it; "-" when none has.
    std::string Atributo(const std::string& atributo) const
    {
        std::ifstream fichero(m_carpeta.Ruta() / m_nombre, std::ios::binary);
        const std::string texto{std::istreambuf_iterator<char>(fichero), std::istreambuf_iterator<char>()};
        const std::size_t en = texto.rfind(" " + atributo + "=\"");
        if (en == std::string::npos)
            return "-";
        const std::size_t inicio = en + atributo.size() + 3;
        return texto.substr(inicio, texto.find('"', inicio) - inicio);
    }

private:
    std::string m_nombre;
    int (*m_editar)(int);
    CarpetaTemporal m_carpeta;
};

}  // namespace efv::pruebas
