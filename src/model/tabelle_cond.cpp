#include "model/tabelle_cond.h"

#include "model/struttura.h"
#include "platform/citazione.h"
#include "platform/file_testo.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"

#include <algorithm>

namespace telva {

std::int16_t NumSpessori;
Tabella<std::int16_t, 16001> MatSpessore{"MatSpessore"};
Tabella<double, 16001> ValSpessore{"ValSpessore"};
std::int16_t NumSezioni;
Tabella<std::int16_t, 20001> MatSezione{"MatSezione"};

namespace {

// The number of entries to read; over the limit the message comes at once and the limit holds.
std::int16_t Limita(double numero, int limite, IndiceMessaggio messaggio) {
    numero = ArrotondaPari(numero);
    if (numero > limite) MostraMessaggio(Messaggi[messaggio], Gravita::Critica, "Problema");
    return static_cast<std::int16_t>(std::clamp(numero, 0.0, double(limite)));
}

std::int16_t LeggiConteggio(FileTesto &file, int limite, IndiceMessaggio messaggio) {
    double numero = 0;
    file.LeggiNumero(numero);
    return Limita(numero, limite, messaggio);
}

// A value that is no 16-bit number leaves its place as it was.
void LeggiIntero(FileTesto &file, std::int16_t &dove) {
    double valore = 0;
    if (file.LeggiNumero(valore) != Lettura::Riuscita) return;
    if (const auto intero = Intero16(ArrotondaPari(valore))) dove = *intero;
}

// A value of the continuous-element file, which must be there and be right.
std::int16_t InteroDovuto(FileTesto &file) {
    double valore = 0;
    const Lettura esito = file.LeggiNumero(valore);
    if (esito == Lettura::FineFile)
        GuastoInFile(file.Percorso(), file.Riga() + 1,
                     "il file finisce prima delle voci annunciate");
    const auto intero = Intero16(ArrotondaPari(valore));
    if (esito == Lettura::Malformata || !intero)
        GuastoInFile(file.Percorso(), file.Riga(), "numero intero errato");
    return *intero;
}

void LeggiUnElCont(FileTesto &file, int k) {
    NumeroElCont[k] = InteroDovuto(file);
    DatoElCont2[k] = InteroDovuto(file);
    if (file.LeggiTesto(NomeElCont[k]) == Lettura::FineFile)
        GuastoInFile(file.Percorso(), file.Riga() + 1,
                     "il file finisce prima delle voci annunciate");
    const std::int16_t aste = InteroDovuto(file);
    if (aste > kAsteElCont)
        GuastoInFile(file.Percorso(), file.Riga(),
                     "troppe aste nell'elemento continuo: " + TestoNumero(aste) + " (al massimo " +
                         TestoNumero(kAsteElCont) + ")");
    NumAsteElCont[k] = std::max<std::int16_t>(aste, 0);
    for (int j = 0; j < NumAsteElCont[k]; ++j) AsteElCont(k, j) = InteroDovuto(file);
}

} // namespace

std::string LeggiSpessori() {
    FileTesto file;
    if (!file.Apri(DirLavoro + "\\spessori"))
        return Messaggi[kMsgFileIllegibile] + CitaPercorso(DirLavoro + "\\spessori");
    NumSpessori = LeggiConteggio(file, kSchedeSpessore, kMsgTroppiSpessori);
    if (NumSpessori == 0) std::fill_n(MatSpessore.Dati(), kSchedeSpessore, std::int16_t{0});
    for (int n = 0; n < NumSpessori; ++n) {
        file.SaltaValore();
        LeggiIntero(file, MatSpessore[n]);
        file.SaltaValore();
        file.LeggiNumero(ValSpessore[n]);
        file.SaltaValore();
    }
    return {};
}

std::string LeggiSezioni() {
    FileTesto file;
    if (!file.Apri(DirLavoro + "\\sezioni_"))
        return Messaggi[kMsgFileIllegibile] + CitaPercorso(DirLavoro + "\\sezioni_");
    NumSezioni = LeggiConteggio(file, kSchedeSezione, kMsgTroppeSezioni);
    if (NumSezioni == 0) std::fill_n(MatSezione.Dati(), kSchedeSezione, std::int16_t{0});
    for (int n = 0; n < NumSezioni; ++n) {
        for (int ignorato = 0; ignorato < 2; ++ignorato) file.SaltaValore();
        LeggiIntero(file, MatSezione[n]);
        for (int ignorato = 0; ignorato < 12; ++ignorato) file.SaltaValore();
    }
    return {};
}

std::string LeggiElCont() {
    FileTesto file;
    if (!file.Apri(DirLavoro + "\\el_conti.tmp"))
        return Messaggi[kMsgFileIllegibile] + CitaPercorso(DirLavoro + "\\el_conti.tmp");
    double numero = 0;
    if (file.LeggiNumero(numero) != Lettura::Riuscita)
        GuastoInFile(file.Percorso(), std::max(file.Riga(), 1), "numero intero errato");
    NumElCont = Limita(numero, kElCont, kMsgTroppiElCont);
    for (int k = 0; k < NumElCont; ++k) LeggiUnElCont(file, k);
    return {};
}

std::int16_t MaterialeSezione(int scheda) {
    return scheda >= 1 && scheda <= NumSezioni ? MatSezione[scheda - 1] : std::int16_t{0};
}

std::int16_t MaterialeSpessore(int scheda) {
    return scheda >= 1 && scheda <= NumSpessori ? MatSpessore[scheda - 1] : std::int16_t{0};
}

void AzzeraTabelle() {
    NumSpessori = NumSezioni = 0;
    MatSpessore.Azzera();
    ValSpessore.Azzera();
    MatSezione.Azzera();
}

} // namespace telva
