#include "Base.h"

#include <windows.h>

namespace telva::prove {

std::function<void()> alFallimento;
std::function<void(const std::string &)> alPasso;

void Passo(const std::string &testo) {
    if (alPasso) alPasso(testo);
}

void Fallisci(const std::string &testo) {
    if (alFallimento) alFallimento();
    throw Fallito(testo);
}

std::string Utf8(std::wstring_view testo) {
    const int n = static_cast<int>(testo.size());
    const int lung = WideCharToMultiByte(CP_UTF8, 0, testo.data(), n, nullptr, 0, nullptr, nullptr);
    std::string r(static_cast<std::size_t>(lung), '\0');
    WideCharToMultiByte(CP_UTF8, 0, testo.data(), n, r.data(), lung, nullptr, nullptr);
    return r;
}

std::wstring Largo(std::string_view utf8) {
    const int n = static_cast<int>(utf8.size());
    const int lung = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), n, nullptr, 0);
    std::wstring r(static_cast<std::size_t>(lung), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), n, r.data(), lung);
    return r;
}

} // namespace telva::prove
