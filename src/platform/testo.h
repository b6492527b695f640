#pragma once
// Texts are UTF-8 inside the program; files hold Windows-1252.

#include <cstdint>
#include <string>
#include <string_view>

namespace telva {

// Without the blanks at both ends (blanks only: a tab stays).
std::string_view Rifila(std::string_view testo);

// Letter case of ASCII and of the Latin letters of Windows-1252; all else stays.
std::string Minuscole(std::string_view testo);
std::string Maiuscole(std::string_view testo);

// Windows-1252 bytes to UTF-8 and back; a character that Windows-1252 lacks becomes '?'.
std::string DaWindows1252(std::string_view byte);
std::string AWindows1252(std::string_view testo);

// UTF-16 bytes, the high one first or last, to UTF-8. Half a pair becomes U+FFFD, half a character
// at the end is dropped.
std::string DaUtf16(std::string_view byte, bool primaAlto);

// UTF-8 in which each byte that is none has been read as Windows-1252.
std::string Utf8Risanato(std::string_view testo);

// Next code point of a UTF-8 text from `posto` on, which moves past it; bytes that are no UTF-8
// come back one by one as they are, so the loop always ends.
char32_t ProssimoCarattere(std::string_view testo, std::size_t &posto);
void AggiungiCarattere(std::string &testo, char32_t carattere);

// Number of characters of a UTF-8 text, and the bytes that its first `caratteri` take.
std::size_t NumeroCaratteri(std::string_view testo);
std::size_t ByteDiCaratteri(std::string_view testo, std::size_t caratteri);

// Windows-1252 code of a character, or -1 when it has none.
int CodiceAnsi(char32_t carattere);

} // namespace telva
