#pragma once
// Installations and files that stand in the way.
#include "Prove.h"

namespace telva::prove {

// The same with options and a font of its own, on the same jobs.
Ambiente Copia(Ambiente amb);

// What may keep a file from being opened: it is gone, a folder, in another program's hands, or may
// only be read; last, in the hands of one that shares it.
enum class Ostacolo { Manca, Cartella, Chiuso, SolaLettura, Letto };

// Puts an obstacle in the way of a file, and takes it away at its end at the latest.
class Impedito {
  public:
    Impedito(std::filesystem::path file, Ostacolo ostacolo);
    ~Impedito() { Libera(); }
    Impedito(const Impedito &) = delete;
    Impedito &operator=(const Impedito &) = delete;
    void Libera();

  private:
    std::filesystem::path file_;
    HANDLE preso_ = nullptr;
};

} // namespace telva::prove
