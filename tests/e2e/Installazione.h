#pragma once
// Installations and jobs, files that stand in the way, and what the program leaves behind.
#include "Prove.h"

namespace telva::prove {

// The same with a font of its own and no file of options, on the same jobs.
Ambiente Copia(Ambiente amb);

// Makes a small job whose every property is known: nodes 1 to 4 and 20, bars 7, 8, 9, 12, 14,
// shells 31 to 38, continuous elements 101 to 103; coordinates are whole, so that all lie inside
// the rounded coordinate intervals. `lontano` is added to each of them.
std::filesystem::path LavoroPiccolo(const Ambiente &amb, const std::string &codice = "prova1",
                                    double lontano = 0);

// Ends the program by Ctrl+E.
void Esci(Programma &p);

// What the program wrote for its caller; "(no file)" when nothing.
std::string Scritto(const std::filesystem::path &lavoro);

// The job holds nothing but whole files with the names they had.
void VerificaNessunResto(const std::filesystem::path &lavoro);

// What may keep a file from being opened: it is in another program's hands, or may only be read;
// last, in the hands of one that shares it.
enum class Ostacolo { Chiuso, SolaLettura, Letto };

// Puts an obstacle in the way of a file, and takes it away at its end at the latest.
class Impedito {
  public:
    Impedito(std::filesystem::path file, Ostacolo ostacolo);
    ~Impedito();
    Impedito(const Impedito &) = delete;
    Impedito &operator=(const Impedito &) = delete;

  private:
    std::filesystem::path file_;
    HANDLE preso_ = nullptr;
};

} // namespace telva::prove
