#include "autoconsumo/estudio_de_texto.h"

#include <filesystem>

#include "autoconsumo/lectura_estudio.h"

namespace efv::orden {

report::ProyectoAutoconsumo ProyectoDeTexto(const std::string& json, const std::string& ruta)
{
    return LeerEstudio(AnalizarJson(json), ruta, {}).proyecto;
}

std::string TextoDeEstudio(const std::string& ruta)
{
    JsonLeido json = LeerFicheroJson(ruta);
    const std::string entera = std::filesystem::absolute(ruta).string();
    const EstudioLeido leido = LeerEstudio(json, entera, {});
    NombrarFicherosEnteros(json, entera);
    if (leido.bCostePorPotencia)
        json["coste"] = {{"porKWp", leido.proyecto.coste.dPorKWp}};
    return json.dump();
}

}  // namespace efv::orden
