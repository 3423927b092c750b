// The project that is open: new, open, save, and the question before anything is lost.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <vector>

#include <quorvel/ficheros.h>

#include "proyecto/proyecto.h"

namespace efv::estudio {

inline constexpr std::size_t kRecientes = 8;

/// What fails is told to the person through the presenter; the open project then stays as it was.
class Sesion {
public:
    /// New projects stand at `lugar`.
    explicit Sesion(Lugar lugar = {}, Situacion situacion = {});

    const Lugar& LugarInicial() const { return m_lugar; }
    const Situacion& SituacionInicial() const { return m_situacion; }

    /// The project in its present form. After changing it, call Cambiado.
    CProyectoEstudio& Proyecto() { return *m_proyecto; }
    const CProyectoEstudio& Proyecto() const { return *m_proyecto; }
    const CString& Ruta() const { return m_csRuta; }  ///< empty: never saved
    bool Modificado() const { return m_bModificado; }
    /// "name[*] - program", with Qt's mark for what is unsaved.
    CString Titulo() const;

    void Cambiado();

    void Nuevo();
    /// The same with what a project holds from the start.
    void Nuevo(std::unique_ptr<CProyectoEstudio> proyecto);
    void Abrir();
    /// @return whether it is open now.
    bool Abrir(const CString& csRuta);
    /// Asks for a name when it has none. @return false when it wasn't saved.
    bool Guardar();
    bool GuardarComo();
    /// Asks about unsaved changes. @return false when the person wants to stay.
    bool PuedeCerrarse();

    /// Files last opened or saved, the last one first.
    const std::vector<CString>& Recientes() const { return m_recientes; }
    void PonerRecientes(std::vector<CString> recientes);

    /// Told when the project or anything of the above is another.
    std::function<void()> alCambiar;

private:
    bool Cargar(const CString& csRuta);
    void Poner(std::unique_ptr<CProyectoEstudio> proyecto, const CString& csRuta);
    bool GuardarEn(const CString& csRuta);
    /// False when the person doesn't want what another program wrote meanwhile to be replaced.
    bool Escribir(std::span<const std::byte> bytes, const CString& csRuta) const;
    void Recordar(const CString& csRuta);
    void Avisar() const;

    std::unique_ptr<CProyectoEstudio> Vacio() const;

    Lugar m_lugar;
    Situacion m_situacion;
    std::unique_ptr<CProyectoEstudio> m_proyecto;
    std::vector<std::byte> m_guardado;  // as it was when new, opened or saved
    Huella m_huella;                    // of the file as it was opened or saved
    CString m_csRuta;
    bool m_bModificado = false;
    std::vector<CString> m_recientes;
};

}  // namespace efv::estudio
