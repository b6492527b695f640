#include "model/legfont_cond.h"

#include "platform/archivio.h"
#include "platform/citazione.h"
#include "platform/file_testo.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "platform/testo.h"
#include "startup/direttori_cond.h"

#include <algorithm>

namespace telva {

Tabella<std::string, 256> CarFont{"CarFont"};
Tabella<std::int16_t, 256> NumPtFont{"NumPtFont"};
Tabella2<std::int16_t, 256, kPuntiCarattere> FontX{"FontX"}, FontY{"FontY"};
std::int16_t SpazioFont = 0;
int RevisioneFont = 0;

namespace {

constexpr int kPuntiMassimi = 100;

// The two characters of a coordinate; beyond the end of the line they are empty and give 0.
// False when they are no number.
bool Coordinata(std::string_view riga, std::size_t posto, std::int16_t &dove) {
    const std::string_view testo = Rifila(posto < riga.size() ? riga.substr(posto, 2) : "");
    const auto numero = testo.empty() ? std::optional<double>(0) : NumeroStretto(testo);
    if (!numero) return false;
    dove = static_cast<std::int16_t>(ArrotondaPari(*numero)); // two characters: it fits
    return true;
}

// One byte for each character of the line.
bool LeggiCarattere(int codice, std::string_view riga) {
    CarFont[codice] = DaWindows1252(riga.substr(0, 1));
    const double tratti = ArrotondaPari(static_cast<double>(riga.size() - 1) / 8);
    const int punti = static_cast<int>(std::min(2 * tratti, double(kPuntiMassimi)));
    NumPtFont[codice] = static_cast<std::int16_t>(punti);
    for (int k = 0; k < punti; ++k) {
        const auto posto = static_cast<std::size_t>(1 + 4 * k);
        if (!Coordinata(riga, posto, FontX(codice, k)) ||
            !Coordinata(riga, posto + 2, FontY(codice, k))) {
            NumPtFont[codice] = static_cast<std::int16_t>(k & ~1);
            return false;
        }
    }
    return true;
}

bool LeggiCaratteri(FileTesto &file) {
    double spazio = 0;
    if (file.LeggiNumero(spazio) != Lettura::Riuscita) return false;
    const auto intero = Intero16(ArrotondaPari(spazio));
    if (!intero) return false;
    SpazioFont = *intero;
    file.FinisciRiga();
    std::string riga;
    while (file.LeggiRigaTesto(riga)) {
        riga.resize(riga.find_last_not_of(' ') + 1);
        if (riga.empty()) continue;
        std::size_t posto = 0;
        const int codice = CodiceAnsi(ProssimoCarattere(riga, posto));
        if (codice < 0) break; // a character beyond the table ends the reading
        if (!LeggiCarattere(codice, AWindows1252(riga))) return false;
    }
    return true;
}

} // namespace

void AzzeraFont() {
    ++RevisioneFont;
    CarFont.Azzera();
    SpazioFont = 0;
    for (int codice = 0; codice < 256; ++codice) NumPtFont[codice] = -1;
}

void LeggiFont() {
    AzzeraFont(); // the tables count as changed until the next call
    std::string percorso = DirProgra + "\\font.001";
    if (!EsisteFile(percorso) && EsisteFile(DirRoot + "\\font.001"))
        percorso = DirRoot + "\\font.001";
    FileTesto file;
    if (!EsisteFile(percorso))
        MostraMessaggio("File " + CitaPercorso(percorso) + " inesistente!", Gravita::Critica,
                        "Problema");
    else if (!file.Apri(percorso) || !LeggiCaratteri(file))
        MostraMessaggio("Errore in lettura del file " + CitaPercorso(percorso) + " !",
                        Gravita::Critica, "Problema");
}

} // namespace telva
