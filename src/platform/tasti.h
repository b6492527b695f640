#pragma once
// Keys by their virtual code, and the one character that the main window knows.

namespace telva {

inline constexpr int kTastoInvio = 13, kTastoEsc = 27;
inline constexpr int kCarattereEsc = 27;
inline constexpr int kTastoSinistra = 37, kTastoSu = 38, kTastoDestra = 39, kTastoGiu = 40;
// + and - stand among the letters and on the number pad.
inline constexpr int kTastoPiu = 187, kTastoMeno = 189, kTastoPiuCifre = 107, kTastoMenoCifre = 109;

} // namespace telva
