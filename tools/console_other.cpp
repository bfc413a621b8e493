#include "tools/console.h"

Console::Console() = default;

Console::~Console() = default;

void Console::EsperaTecla() {}
