#include "Installazione.h"

#include "sostegno/LavoroProva.h"

#include <utility>

namespace telva::prove {

namespace fs = std::filesystem;

namespace {

LavoroProva Struttura() {
    LavoroProva l;
    l.punti = {{0, 0, 0}, {400, 0, 0}, {0, 0, 300}, {400, 0, 300}, {200, 0, 450}};
    l.nodi = {{.punto = 0, .nome = 1, .colore = 1}, // Sessione finds each of them by its colour
              {.punto = 1, .nome = 2, .colore = 2},
              {.punto = 2, .nome = 3, .colore = 3},
              {.punto = 3, .nome = 4, .colore = 4},
              {.punto = 4, .nome = 20, .colore = 7}};
    l.aste = {{.i = 0, .j = 2, .nome = 7, .colore = 8, .orientamento = 1},
              {.i = 1, .j = 3, .nome = 8, .colore = 8, .tipo = 1, .orientamento = 1},
              {.i = 2, .j = 4, .nome = 9, .colore = 9, .tipo = 2},
              {.i = 3, .j = 4, .nome = 12, .colore = 9, .tipo = 4},
              {.i = 0, .j = 1, .nome = 14, .colore = 5, .tipo = 3}};
    for (int tratto = 1; tratto < 8; ++tratto)
        l.gusci.push_back({.nodi = {0, 1, 4, 2},
                           .nome = 30 + tratto,
                           .colore = 6,
                           .tratto = tratto,
                           .spessore = 1 + (tratto + 1) % 2});
    l.gusci.push_back({.nodi = {2, 3, 4, -1}, .nome = 38, .colore = 6, .tratto = 8, .spessore = 2});
    return l;
}

} // namespace

fs::path LavoroPiccolo(const Ambiente &amb, const std::string &codice, double lontano) {
    const auto cartella = amb.Lavori() / codice;
    fs::remove_all(cartella);
    LavoroProva lavoro = Struttura();
    for (auto &punto : lavoro.punti)
        for (double &coordinata : punto) coordinata += lontano;
    std::string struttura = lavoro.Struttura();
    std::erase(struttura, '\r');
    ScriviFile(cartella / "STRUTTUR.STR", struttura);
    ScriviFile(cartella / "sezioni_", "0\n");
    // Number, material, 0, thickness in cm, 1.
    ScriviFile(cartella / "spessori", "2\n1, 5, 0, 20, 1\n2, 7, 0, 25, 1\n");
    // Number, 0 and name of a continuous element; how many bars; which.
    ScriviFile(cartella / "el_conti.tmp",
               "3\n101, 0, \"A\"\n2\n7 8\n102, 0, \"B\"\n2\n9 12\n103, 0, \"C\"\n2\n7 9\n");
    return cartella;
}

Ambiente Copia(Ambiente amb) {
    const auto da = std::exchange(amb.dati, fs::temp_directory_path() / "telva_copia");
    fs::remove_all(amb.dati);
    fs::create_directories(amb.dati);
    for (const char *parte : {"impostazioni", "custom", "progra"})
        fs::copy(da / parte, amb.dati / parte);
    fs::remove(amb.dati / "custom" / "TelOpzio.txt");
    return amb;
}

void Esci(Programma &p) {
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
}

std::string Scritto(const fs::path &lavoro) {
    return LeggiByte(lavoro / "TelvaOut.txt").value_or("(no file)");
}

void VerificaNessunResto(const fs::path &lavoro) {
    for (const auto &voce : fs::directory_iterator(lavoro))
        VERIFICA(voce.path().wstring().find(L".~") == std::wstring::npos);
}

Impedito::Impedito(fs::path file, Ostacolo ostacolo) : file_(std::move(file)) {
    const auto prendi = [&](DWORD insieme) {
        preso_ =
            CreateFileW(file_.c_str(), GENERIC_READ, insieme, nullptr, OPEN_EXISTING, 0, nullptr);
    };
    switch (ostacolo) {
    case Ostacolo::Chiuso: prendi(0); return;
    case Ostacolo::SolaLettura: SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY); return;
    case Ostacolo::Letto: prendi(FILE_SHARE_READ | FILE_SHARE_WRITE); return;
    }
}

Impedito::~Impedito() {
    if (preso_) CloseHandle(preso_);
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
}

} // namespace telva::prove
