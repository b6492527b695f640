#pragma once
// The table of the program's messages.

#include "platform/tabella.h"

#include <string>

namespace telva {

// Texts 0..22, each with one blank at both ends; empty until CaricaMessaggi has run.
extern Tabella<std::string, 23> Messaggi;

void CaricaMessaggi();

} // namespace telva
