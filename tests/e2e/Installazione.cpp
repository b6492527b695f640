#include "Installazione.h"

#include <utility>

namespace telva::prove {

namespace fs = std::filesystem;

Ambiente Copia(Ambiente amb) {
    const auto da = std::exchange(amb.dati, fs::temp_directory_path() / "telva_copia");
    fs::remove_all(amb.dati);
    fs::create_directories(amb.dati);
    for (const char *parte : {"impostazioni", "custom", "progra"})
        fs::copy(da / parte, amb.dati / parte);
    return amb;
}

Impedito::Impedito(fs::path file, Ostacolo ostacolo) : file_(std::move(file)) {
    const auto prendi = [&](DWORD insieme) {
        preso_ =
            CreateFileW(file_.c_str(), GENERIC_READ, insieme, nullptr, OPEN_EXISTING, 0, nullptr);
    };
    switch (ostacolo) {
    case Ostacolo::Manca: fs::remove(file_); return;
    case Ostacolo::Cartella:
        fs::remove(file_);
        fs::create_directory(file_);
        return;
    case Ostacolo::Chiuso: prendi(0); return;
    case Ostacolo::SolaLettura: SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY); return;
    case Ostacolo::Letto: prendi(FILE_SHARE_READ | FILE_SHARE_WRITE); return;
    }
}

void Impedito::Libera() {
    if (preso_) CloseHandle(std::exchange(preso_, nullptr));
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (fs::is_directory(file_)) fs::remove(file_);
}

} // namespace telva::prove
