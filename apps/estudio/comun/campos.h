// Fields that count once they are left, and not at each key.
#pragma once

#include <functional>
#include <vector>

#include <QuorvelEFV.h>

namespace efv::estudio {

/// The fields of one dialog. What is wrong in one is marked there, and its variable keeps what it had.
class CamposQueSeDejan {
public:
    /// @param alDejar after a field that was written in has been left, or taken otherwise
    explicit CamposQueSeDejan(std::function<void()> alDejar) : m_alDejar(std::move(alDejar)) {}
    CamposQueSeDejan(const CamposQueSeDejan&) = delete;
    CamposQueSeDejan& operator=(const CamposQueSeDejan&) = delete;

    /// From now on it belongs to them, with what it does when it changes and when it is left.
    void Anadir(ui::Edicion& campo);

    /// Takes what is written and not left yet. False when a field is at fault.
    bool Tomar();
    /// The first field at fault; null when all are well.
    ui::Edicion* Falta() const;
    /// What is wrong there; empty when all are well.
    CString TextoFalta() const;
    /// Tells the person, with the focus of `dialogo` there.
    void Avisar(ui::Dialogo& dialogo) const;
    /// They show something else: nothing is written, nothing wrong.
    void Olvidar();
    /// One of them shows its variable again.
    void Olvidar(ui::Edicion& campo);

private:
    struct Puesto {
        ui::Edicion* campo;
        bool bEscrito = false;
        CString csFalta = {};  // what is wrong with it; empty: nothing
    };

    static void Tomar(Puesto& puesto);
    static void Marcar(Puesto& puesto, CString csFalta);
    const Puesto* PrimeraFalta() const;

    std::function<void()> m_alDejar;
    std::vector<Puesto> m_puestos;
};

}  // namespace efv::estudio
