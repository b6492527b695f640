#pragma once
// The summary field: one line in a sunken frame, long texts with an ellipsis, Ctrl+C copies it all.

#include "platform/win32/base_win32.h"

namespace telva {

void RegistraRiassunto();
HWND CreaRiassunto(const Nascita &nascita, const std::wstring &testo);
// True when the whole text does not fit into the field.
bool RiassuntoTagliato(HWND riassunto);

} // namespace telva
