#pragma once

/// Seconds, with fractions, since a moment that stays the same while the process runs. They never
/// go back, do not follow changes of the system's clock, and count the time that the machine sleeps
/// as far as the system can tell.
double SegundosContinuos();
