#pragma once

class QWidget;

namespace toolkit {

/// Makes forms, controls and announcements known to the system's accessibility interface. Needs the
/// application object; once more does nothing.
void InstalaAcessibilidade();

/// Tells assistive technology which of the names, descriptions and states that it has read in
/// `janela` are no longer the same.
void ContaMudancas(const QWidget &janela);

} // namespace toolkit
