// The files of the running system.
#pragma once

#include <quorvel/sistema_ficheros.h>

namespace efv {

class SistemaPosix final : public SistemaFicheros {
public:
    int Abrir(const std::string& ruta, Apertura modo) override;
    int Crear(const std::string& ruta, unsigned uPermisos) override;
    int CrearSinNombre(const std::string& carpeta, unsigned uPermisos) override;
    void Cerrar(int iFichero) override;
    std::int64_t Leer(int iFichero, std::span<char> bytes) override;
    int Rebobinar(int iFichero) override;
    std::int64_t Escribir(int iFichero, std::string_view bytes) override;
    int Vaciar(int iFichero) override;
    int Bloquear(int iFichero) override;
    std::string Ocupante(int iFichero) override;
    int Estado(int iFichero, DatosFichero& datos) override;
    int Estado(const std::string& ruta, DatosFichero& datos) override;
    int LeerEnlace(const std::string& ruta, std::string& destino) override;
    int CopiarAtributos(int iViejo, int iNuevo) override;
    int Nombrar(int iFichero, const std::string& ruta) override;
    int Renombrar(const std::string& ruta, const std::string& nueva, bool bSustituir) override;
    int Borrar(const std::string& ruta) override;
    int CrearCarpeta(const std::string& ruta) override;
    int Listar(const std::string& carpeta, std::vector<std::string>& nombres) override;
};

}  // namespace efv
