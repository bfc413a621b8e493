#pragma once

#include "ui/toolkit/form.h"

#include <vector>

namespace toolkit {

/// A control array: member 0 is a hidden template, from which the others are made at run time.
template <class T>
class ControlArray
{
public:
    /// `molde`: member 0. `maximo`: the highest index that a member can have.
    ControlArray(Form &form, T &molde, const PictureBox *dentro, int maximo)
        : m_form(form), m_dentro(dentro), m_membros(static_cast<size_t>(maximo) + 1)
    {
        m_membros[0] = &molde;
    }

    /// Member `i`, which must exist.
    T &operator()(int i) const
    {
        T *membro = m_membros[static_cast<size_t>(i)];
        Q_ASSERT(membro != nullptr);
        return *membro;
    }

    /// Whether member `i` has been created and not unloaded; False for an index that no member can
    /// have.
    [[nodiscard]] bool ExisteObjeto(int i) const
    {
        return i >= 0 && static_cast<size_t>(i) < m_membros.size() &&
               m_membros[static_cast<size_t>(i)] != nullptr;
    }

    /// Creates member `i`, hidden, with the template's look and place, right behind the template.
    /// One that exists stays as it is.
    T &Load(int i)
    {
        T *&membro = m_membros[static_cast<size_t>(i)];
        if (membro == nullptr) {
            T &molde = *m_membros[0];
            membro = &m_form.Cria<T>(molde.Name(), i, m_dentro);
            membro->CopiaDe(molde);
            membro->FicaAtrasDe(molde);
            if (AoCarregar) {
                AoCarregar(*membro, i);
            }
        }
        return *membro;
    }

    /// Destroys member `i`. Unloading what is not loaded passes in silence.
    void Unload(int i)
    {
        if (T *membro = std::exchange(m_membros[static_cast<size_t>(i)], nullptr)) {
            m_form.Descarrega(*membro);
        }
    }

    /// Called for each new member: the place to connect its events.
    std::function<void(T &membro, int i)> AoCarregar;

private:
    Form &m_form;
    const PictureBox *m_dentro;
    std::vector<T *> m_membros;
};

} // namespace toolkit
