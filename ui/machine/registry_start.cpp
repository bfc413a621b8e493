#include "ui/machine/registry_start.h"

#include <QStandardPaths>

RegistroDoPrograma::RegistroDoPrograma(int dpi)
    : m_armazem(AbreRegistroDoSistema(
          {dpi, QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)})),
      m_registro(*m_armazem)
{
}
