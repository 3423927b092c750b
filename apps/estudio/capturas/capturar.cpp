#include "capturas/capturar.h"

#include <set>
#include <stdexcept>

#include <QApplication>
#include <QDialog>

#include <quorvel/qt.h>

namespace efv::estudio {

namespace {

// Takes a picture of each dialog that opens, then does in it what its screen says.
class PresentadorCapturas final : public ui::Presentador {
public:
    PresentadorCapturas(const Pantalla& pantalla, const std::filesystem::path& carpeta)
        : m_pantalla(pantalla), m_carpeta(carpeta)
    {
        ui::InstalarPresentador(this);
    }
    ~PresentadorCapturas() override { qt::InstalarPresentadorQt(); }

    int Cuantas() const { return static_cast<int>(m_escritos.size()); }

    void MostrarModal(ui::Dialogo& dialogo) override
    {
        const std::unique_ptr<QDialog> ventana(qt::CrearVentana(dialogo));
        std::string nombre = m_pantalla.nombre + '-' + dialogo.clase;
        // A class that opens again gets a number.
        for (int i = 2; !m_escritos.insert(nombre).second; ++i)
            nombre = m_pantalla.nombre + '-' + dialogo.clase + '-' + std::to_string(i);
        ventana->show();
        CapturarVentana(*ventana, m_carpeta / (nombre + ".png"));
        if (m_pantalla.recorrer)
            m_pantalla.recorrer(dialogo);
        if (!dialogo.Terminado())
            dialogo.Cancelar();
    }

    ui::Respuesta MostrarMensaje(const ui::Mensaje& mensaje) override
    {
        return m_nadie.MostrarMensaje(mensaje);
    }
    void MostrarRechazo(ui::Dialogo& /*dialogo*/, const ui::Rechazo& /*rechazo*/) override {}
    std::optional<CString> ElegirFichero(const ui::PeticionFichero& /*peticion*/) override
    {
        return std::nullopt;
    }
    CString LeerPortapapeles() override { return {}; }
    void EscribirPortapapeles(const CString& /*csTexto*/) override {}
    void Esperar(bool /*bEmpieza*/) override {}
    void Refrescar(ui::Dialogo& /*dialogo*/) override {}

private:
    const Pantalla& m_pantalla;
    const std::filesystem::path& m_carpeta;
    ui::PresentadorNulo m_nadie;
    std::set<std::string> m_escritos;
};

}  // namespace

void CapturarVentana(QWidget& ventana, const std::filesystem::path& archivo)
{
    QApplication::processEvents();
    if (!ventana.grab().save(QString::fromStdString(archivo.string())))
        throw std::runtime_error("No se puede escribir «" + archivo.string() + "».");
}

int Capturar(const std::vector<Pantalla>& pantallas, const std::filesystem::path& carpeta)
{
    int nCapturas = 0;
    for (const Pantalla& pantalla : pantallas) {
        PresentadorCapturas presentador(pantalla, carpeta);
        if (pantalla.crear) {
            const auto dialogo = pantalla.crear();
            dialogo->Mostrar();
        } else {
            pantalla.abrir();
        }
        nCapturas += presentador.Cuantas();
    }
    return nCapturas;
}

}  // namespace efv::estudio
