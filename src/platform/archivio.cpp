#include "platform/archivio.h"

#include "platform/archivio_disco.h"

#include <algorithm>

namespace telva {
namespace {

constexpr const char *kProvvisorio = ".~"; // between the name of the file and the number
constexpr int kNomi = 8;                   // attempts to find a name for a temporary
constexpr int kSostituzioni = 20;          // attempts to take the place of the file
constexpr int kAttese = 100;               // attempts to have the file itself

Disco *&Impostato() {
    static Disco *disco = nullptr;
    return disco;
}

Disco &InUso() { return Impostato() ? *Impostato() : DiscoDelSistema(); }

enum class Esito { Riuscito, Fallito, Impedito };

std::unique_ptr<FileScritto> CreaProvvisorio(const std::string &percorso) {
    for (int n = 0; n < kNomi; ++n)
        if (auto file = InUso().Crea(percorso + kProvvisorio + InUso().NumeroProprio()))
            return file;
    return nullptr;
}

Esito Sostituisci(const std::string &percorso, std::string_view contenuto) {
    const auto file = CreaProvvisorio(percorso);
    if (!file) return Esito::Impedito;
    if (!file->Scrivi(contenuto)) return Esito::Fallito;
    for (int n = 0; n < kSostituzioni; ++n) {
        if (n > 0) InUso().Attendi();
        if (file->Tieni(percorso)) return Esito::Riuscito;
    }
    return Esito::Impedito;
}

// What cannot be written whole is put back.
bool Riscrivi(FileScritto &file, std::string_view contenuto) {
    std::string prima;
    if (!file.Leggi(prima)) return false;
    if (file.Scrivi(contenuto)) return true;
    file.Scrivi(prima);
    return false;
}

bool ScriviSulPosto(const std::string &percorso, std::string_view contenuto) {
    for (int n = 0; n < kAttese; ++n) {
        if (n > 0) InUso().Attendi();
        if (const auto nuovo = InUso().Crea(percorso))
            return nuovo->Scrivi(contenuto) && nuovo->Tieni(percorso);
        bool occupato = false;
        if (const auto file = InUso().Apri(percorso, occupato)) return Riscrivi(*file, contenuto);
        if (!occupato) return false;
    }
    return false;
}

} // namespace

void ImpostaDisco(Disco *disco) { Impostato() = disco; }

bool EsisteFile(const std::string &percorso) { return InUso().Esiste(percorso); }

bool LeggiFile(const std::string &percorso, std::string &contenuto) {
    contenuto.clear();
    if (InUso().Leggi(percorso, contenuto)) return true;
    contenuto.clear();
    return false;
}

bool ScriviFile(const std::string &percorso, std::string_view contenuto) {
    if (InUso().Protetto(percorso)) return false;
    const Esito esito = Sostituisci(percorso, contenuto);
    return esito == Esito::Riuscito ||
           (esito == Esito::Impedito && ScriviSulPosto(percorso, contenuto));
}

void TogliProvvisori(const std::string &percorso) {
    const std::string inizio = percorso + kProvvisorio;
    const auto cifra = [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
    for (const std::string &file : InUso().Accanto(inizio))
        if (std::ranges::all_of(file.substr(inizio.size()), cifra)) InUso().Sgombra(file);
}

} // namespace telva
