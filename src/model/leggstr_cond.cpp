#include "model/leggstr_cond.h"

#include "model/struttura.h"
#include "platform/citazione.h"
#include "platform/file_testo.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "platform/testo.h"
#include "startup/direttori_cond.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

namespace telva {
namespace {

constexpr double kCoordinataContata = 5000; // a point at or beyond this is no part of the box
constexpr double kNomeNodoMassimo = 32000;

// Next token of a line: between blanks and tabs; the rest of the line stays for the next one.
std::string_view ProssimoCampo(std::string_view &riga) {
    const auto vuoto = [](char c) { return c == ' ' || c == '\t'; };
    std::size_t inizio = 0;
    while (inizio < riga.size() && vuoto(riga[inizio])) ++inizio;
    std::size_t fine = inizio;
    while (fine < riga.size() && !vuoto(riga[fine])) ++fine;
    const std::string_view campo = riga.substr(inizio, fine - inizio);
    riga.remove_prefix(fine);
    return campo;
}

// Value of a token, nearest integer; most are plain integers.
double ValoreCampo(std::string_view campo) {
    int intero = 0;
    const auto esito = std::from_chars(campo.data(), campo.data() + campo.size(), intero);
    if (esito.ec == std::errc() && esito.ptr == campo.data() + campo.size()) return intero;
    return ArrotondaPari(ValoreNumerico(campo));
}

class LettoreStruttura {
  public:
    bool Apri() { return file_.Apri(DirLavoro + "\\STRUTTUR.STR"); }

    void Leggi(std::int16_t &ok) {
        VerificaVersione();
        LeggiPunti();
        if (!LeggiNodi()) {
            ok = 0;
            return;
        }
        LeggiAste();
        LeggiGusci();
        for (int sezione = 0; sezione < 3; ++sezione) SaltaSezione();
        LeggiTesti();
        SegnalaIndice();
    }

  private:
    void VerificaVersione() {
        std::string_view riga;
        file_.LeggiRiga(riga);
        if (Minuscole(riga).find("release") != std::string::npos) return;
        MostraMessaggio("Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Zorel'",
                        Gravita::Critica, "Attenzione");
        FineProgramma(kFineDaSe);
    }

    // A line of tokens; where the file has ended although entries are still due, a fault.
    std::string_view RigaDovuta() {
        std::string_view riga;
        if (!file_.LeggiRiga(riga)) FileCorto();
        return riga;
    }

    [[noreturn]] void FileCorto() const {
        GuastoInFile(file_.Percorso(), file_.Riga() + 1,
                     "il file finisce prima delle voci annunciate");
    }

    std::int16_t A16(double valore) const {
        const auto intero = Intero16(valore);
        if (!intero)
            GuastoInFile(file_.Percorso(), file_.Riga(),
                         "numero fuori dai limiti di 16 bit: " + CitaNumero(valore));
        return *intero;
    }

    void Campo(std::string_view &riga, std::int16_t &dove) const {
        dove = A16(ValoreCampo(ProssimoCampo(riga)));
    }

    // A number of a free-format record: one that is none leaves its place as it was.
    void Libero(std::int16_t &dove) {
        double valore = 0;
        const Lettura esito = file_.LeggiNumero(valore);
        if (esito == Lettura::FineFile) FileCorto();
        if (esito == Lettura::Riuscita) dove = A16(ArrotondaPari(valore));
    }
    void Libero(double &dove) {
        if (file_.LeggiNumero(dove) == Lettura::FineFile) FileCorto();
    }

    // Number of entries of a section that the tables have to hold.
    std::int16_t Conteggio(int capacita, const char *troppe) {
        std::string_view riga;
        if (!file_.LeggiRiga(riga)) return 0;
        const double valore = ValoreCampo(ProssimoCampo(riga));
        if (valore > capacita)
            GuastoInFile(file_.Percorso(), file_.Riga(),
                         std::string(troppe) + ": " + CitaNumero(valore) + " (al massimo " +
                             TestoNumero(capacita) + ")");
        return std::max<std::int16_t>(A16(valore), 0);
    }

    // Users of an index check it against its table; the first bad one is remembered with its line,
    // so that the fault can say where to look.
    void Indice(int indice, int capacita, const char *che) {
        if ((indice >= 0 && indice < capacita) || !motivo_.empty()) return;
        motivo_ = std::string(che) + " " + TestoNumero(indice) + " fuori dalla tabella (0.." +
                  TestoNumero(capacita - 1) + ")";
        rigaGuasta_ = file_.Riga();
    }

    void SegnalaIndice() const {
        if (!motivo_.empty()) GuastoInFile(file_.Percorso(), rigaGuasta_, motivo_);
    }

    void LeggiPunti() {
        NumPunti = Conteggio(kPunti, "troppi punti");
        for (int p = 0; p < NumPunti; ++p) {
            Libero(PuntoX[p]);
            Libero(PuntoY[p]);
            Libero(PuntoZ[p]);
            Conta(p);
        }
    }

    static void Conta(int p) {
        const double x = PuntoX[p], y = PuntoY[p], z = PuntoZ[p];
        if (!(std::abs(x) < kCoordinataContata && std::abs(y) < kCoordinataContata &&
              std::abs(z) < kCoordinataContata))
            return;
        if (PrimoPuntoContato < 0) {
            PrimoPuntoContato = p;
            XMin = XMax = x;
            YMin = YMax = y;
            ZMin = ZMax = z;
        }
        Allarga(x, XMin, XMax);
        Allarga(y, YMin, YMax);
        Allarga(z, ZMin, ZMax);
    }

    static void Allarga(double valore, double &minimo, double &massimo) {
        if (valore > massimo) massimo = valore;
        if (valore < minimo) minimo = valore;
    }

    bool LeggiNodi() {
        NumNodi = Conteggio(kNodi, "troppi nodi");
        for (int i = 0; i < NumNodi; ++i) {
            std::string_view riga = RigaDovuta();
            Campo(riga, PuntoNodo[i]);
            Campo(riga, TipoPtNodo[i]);
            Campo(riga, ColNodo[i]);
            Indice(PuntoNodo[i], kPunti, "punto");
            riga = RigaDovuta();
            const double nome = ValoreCampo(ProssimoCampo(riga));
            if (nome > kNomeNodoMassimo) {
                SegnalaIndice();
                MostraMessaggio("Nome nodo maggiore di 32000.", Gravita::Esclamazione,
                                "ERRORE IN STRUTTUR.STR");
                return false;
            }
            NomeNodo[i] = A16(nome);
            Campo(riga, VincoloNodo[i]);
        }
        return true;
    }

    void LeggiAste() {
        NumAste = Conteggio(kAste, "troppe aste");
        for (int b = 0; b < NumAste; ++b) {
            for (auto *dove : {&NodoIAsta, &NodoJAsta, &TipoLinAsta, &ColAsta}) Libero((*dove)[b]);
            Indice(NodoIAsta[b], kNodi, "nodo");
            Indice(NodoJAsta[b], kNodi, "nodo");
            std::string_view riga = RigaDovuta();
            for (auto *dove :
                 {&NomeAsta, &SezioneAsta, &SvincoloAsta, &OrientAsta, &DatoAsta5, &DatoAsta6})
                Campo(riga, (*dove)[b]);
        }
    }

    void LeggiGusci() {
        NumGusci = Conteggio(kGusci, "troppi gusci");
        for (int s = 0; s < NumGusci; ++s) {
            for (std::size_t c = 0; c < 4; ++c) {
                Libero(NodiGuscio[s][c]);
                if (c < 3 || NodiGuscio[s][c] >= 0) Indice(NodiGuscio[s][c], kNodi, "nodo");
            }
            std::string_view riga = RigaDovuta();
            Campo(riga, TrattGuscio[s]);
            Campo(riga, NomeGuscio[s]);
            Campo(riga, SpessoreGuscio[s]);
            ProssimoCampo(riga);
            Campo(riga, ColGuscio[s]);
        }
    }

    void SaltaSezione() {
        std::string_view riga;
        if (!file_.LeggiRiga(riga)) return;
        const double numero = ValoreCampo(ProssimoCampo(riga));
        for (double n = 0; n < numero; ++n) {
            RigaDovuta();
        }
    }

    void LeggiTesti() {
        NumTestiFinali = Conteggio(kTesti, "troppi testi finali");
        for (int i = 0; i < NumTestiFinali; ++i) {
            TestoFinale[i] = file_.Testo(RigaDovuta());
            RigaDovuta();
        }
    }

    FileTesto file_;
    std::string motivo_;
    int rigaGuasta_ = 0;
};

// Six values for every bar with a name; false at the first one that is missing or no number.
bool LeggiIngombri() {
    FileTesto file;
    if (!file.Apri(DirLavoro + "\\Ingombri.tmp")) return false;
    for (int b = 0; b < NumAste; ++b) {
        if (NomeAsta[b] <= 0) continue;
        for (auto *dove : {&IngIX, &IngIY, &IngIZ, &IngJX, &IngJY, &IngJZ})
            if (file.LeggiNumero((*dove)[b]) != Lettura::Riuscita) return false;
    }
    return true;
}

} // namespace

void LeggiStruttura(std::int16_t &ok) {
    ok = 1;
    {
        LettoreStruttura lettore;
        if (!lettore.Apri()) {
            ok = 0;
            return;
        }
        lettore.Leggi(ok);
    }
    StrutturaLetta = ok == 1;
    if (ok == 0 || LeggiIngombri()) return;
    for (auto *dove : {&IngIX, &IngIY, &IngIZ, &IngJX, &IngJY, &IngJZ})
        for (int b = 0; b < NumAste; ++b) (*dove)[b] = 0;
}

void ConvertiAsteElCont() {
    // Where each bar name stands first; the same as searching the bars from 0 on for every entry.
    std::vector<std::int16_t> posto(65536, -1);
    const auto voce = [](std::int16_t nome) { return static_cast<std::size_t>(nome + 32768); };
    for (int b = NumAste - 1; b >= 0; --b) posto[voce(NomeAsta[b])] = static_cast<std::int16_t>(b);
    for (int k = 0; k < NumElCont; ++k) {
        for (int j = 0; j < NumAsteElCont[k]; ++j) {
            std::int16_t &asta = AsteElCont(k, j);
            if (const std::int16_t b = posto[voce(asta)]; b >= 0) asta = b;
        }
    }
}

} // namespace telva
