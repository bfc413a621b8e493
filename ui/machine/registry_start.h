#pragma once

#include "core/registry/registry_access.h"
#include "core/registry/registry_store.h"

#include <memory>

/// The registry that the program starts with and its one shared instance: the system's own, or a
/// store in memory that holds the screen's dots per inch and the user's cache directory.
class RegistroDoPrograma
{
public:
    explicit RegistroDoPrograma(int dpi);

    [[nodiscard]] clsRegistryAccess &Acesso() { return m_registro; }

private:
    std::unique_ptr<ArmazemRegistro> m_armazem;
    clsRegistryAccess m_registro;
};
