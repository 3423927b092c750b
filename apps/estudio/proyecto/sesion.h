// The project that is open: new, open, save, undo, and the question before anything is lost.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/ficheros.h>

#include "proyecto/historial.h"
#include "proyecto/proyecto.h"
#include "proyecto/recientes.h"

namespace efv::estudio {

/// What fails is told to the person through the presenter; the open project then stays as it was.
class Sesion {
public:
    /// New projects stand at `lugar`.
    explicit Sesion(Lugar lugar = {}, Situacion situacion = {});

    /// Folder of catalogues and places for the command's files, as the option --datos gives it.
    void PonerDatos(const std::string& csDatos) { m_datos = csDatos; }

    const Lugar& LugarInicial() const { return m_lugar; }
    const Situacion& SituacionInicial() const { return m_situacion; }

    /// The project in its present form. After changing it, call Cambiado.
    CProyectoEstudio& Proyecto() { return *m_proyecto; }
    const CProyectoEstudio& Proyecto() const { return *m_proyecto; }
    const CString& Ruta() const { return m_csRuta; }  ///< empty: never saved
    bool Modificado() const { return m_bModificado; }
    /// "name[*] - program", with Qt's mark for what is unsaved.
    CString Titulo() const;

    /// Whatever differs from the last time becomes one step that can be undone.
    /// @param csPaso what it is called; empty: "cambio" and the part that differs
    void Cambiado(std::wstring_view csPaso = {});

    /// The step that goes next, "cambio del lugar"; empty when there is none.
    CString QueDeshacer() const { return m_historial.QueDeshacer(); }
    CString QueRehacer() const { return m_historial.QueRehacer(); }
    void Deshacer();
    void Rehacer();

    void Nuevo();
    /// The same with what a project holds from the start.
    void Nuevo(std::unique_ptr<CProyectoEstudio> proyecto);
    void Abrir();
    /// A file of the command's, JSON, becomes a project that was never saved.
    /// @return whether it is open now.
    bool Abrir(const CString& csRuta);
    /// Asks for a name when it has none. @return false when it wasn't saved.
    bool Guardar();
    bool GuardarComo();
    /// Asks about unsaved changes. @return false when the person wants to stay.
    bool PuedeCerrarse();
    /// Looks whether another program changed or removed the file, and tells it once, with the choice to load it
    /// again. What then stays open counts as unsaved.
    void ComprobarFichero();

    /// The project as it would be saved, and what is known of its file.
    std::span<const std::byte> Bytes() const { return m_actual; }
    const std::optional<Huella>& HuellaDelFichero() const { return m_huella; }
    /// Opens what was never saved, whatever is open now.
    void Recuperar(std::unique_ptr<CProyectoEstudio> proyecto, const CString& csRuta,
                   std::optional<Huella> huella);

    /// Files last opened or saved, the last one first.
    std::vector<CString> Recientes() const { return m_recientes.leer(); }
    void PonerRecientes(AlmacenRecientes recientes) { m_recientes = std::move(recientes); }

    /// Asked before the project is saved; false, and the person has been told why: not now.
    std::function<bool()> puedeGuardarse;
    /// Told when the project or anything of the above is another.
    std::function<void()> alCambiar;

private:
    bool Cargar(const CString& csRuta);
    void CargarJson(const CString& csRuta);
    void Poner(std::unique_ptr<CProyectoEstudio> proyecto, const CString& csRuta, std::optional<Huella> huella);
    void CargarOtraVez();
    void Tomar(std::vector<std::byte> bytes);
    bool GuardarEn(const CString& csRuta);
    enum class Escritura { hecha, enOtro, ninguna };
    /// Asks before what another program wrote meanwhile is replaced.
    Escritura Escribir(const CString& csRuta);
    void Recordar(const CString& csRuta);
    void Avisar();

    std::unique_ptr<CProyectoEstudio> Vacio() const;

    std::string m_datos;
    Lugar m_lugar;
    Situacion m_situacion;
    std::unique_ptr<CProyectoEstudio> m_proyecto;
    std::vector<std::byte> m_actual;    // as it was at the last change
    std::vector<std::byte> m_guardado;  // as it was when new, opened or saved; empty: never like this
    Historial m_historial;
    std::optional<Huella> m_huella;  // of the file as it was opened or saved; nothing without one
    std::optional<Huella> m_vista;   // of the file as it was last looked at; nothing: it wasn't there
    CString m_csRuta;
    bool m_bModificado = false;
    AlmacenRecientes m_recientes = RecientesEnMemoria();
};

}  // namespace efv::estudio
