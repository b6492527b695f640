#include "selection/schede_sel.h"

#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "selection/selezione.h"
#include "startup/basCommon_cond.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"

#include <optional>

namespace telva {
namespace {

constexpr SchedaProprieta kProprieta[] = {
    {kMateriale,
     "Inserire i numeri delle schede di materiale e premere INVIO",
     "Seleziona per materiale",
     SelezionaPerMateriale,
     {3, kAmmesso, kAmmesso, kAmmesso, kAmmesso}},
    {kNome,
     "Inserire i nomi degli elementi e premere INVIO",
     "Seleziona per nome elemento",
     SelezionaElementoPerNome,
     {kAmmesso, kAmmesso, kAmmesso, kAmmesso, kAmmesso}},
    {kSezione,
     "Inserire i numeri delle schede di sezione e premere INVIO",
     "Seleziona per sezione",
     SelezionaPerSezione,
     {7, kAmmesso, 11, kAmmesso, kIgnorato}},
    {kSpessore,
     "Inserire i numeri delle schede di spessore e premere INVIO",
     "Seleziona per spessore",
     SelezionaPerSpessore,
     {8, 16, kAmmesso, 20, kIgnorato}},
    {kOrientamento,
     "Inserire i numeri delle schede di orientamento e premere INVIO",
     "Seleziona per orientamento",
     SelezionaPerOrientamento,
     {10, kAmmesso, 13, kAmmesso, kIgnorato}},
    {kSvincolo,
     "Inserire i numeri delle schede di svincolo e premere INVIO",
     "Seleziona per svincolo",
     SelezionaPerSvincolo,
     {9, kAmmesso, 12, 21, kIgnorato}},
    {kVincolo,
     "Inserire i numeri delle schede di vincolo e premere INVIO",
     "Seleziona per vincolo",
     SelezionaPerVincolo,
     {kAmmesso, 15, 14, 22, kIgnorato}},
};

class LettoreLista {
  public:
    LettoreLista(int capacita, std::vector<std::int16_t> &numeri)
        : capacita_(static_cast<std::size_t>(capacita)), numeri_(numeri) {}

    EsitoLista Leggi(std::string_view testo) {
        std::size_t pezzo = 0;
        for (std::size_t i = 0; i < testo.size(); ++i) {
            if (testo[i] != ',' && testo[i] != '-') continue;
            const auto valore = Valore(testo.substr(pezzo, i - pezzo));
            if (!valore) return EsitoLista::FuoriLimiti;
            pezzo = i + 1;
            if (testo[i] == '-')
                inizio_ = valore;
            else if (!Aggiungi(*valore))
                return EsitoLista::Troppi;
        }
        if (testo.empty()) return EsitoLista::Riuscita;
        const auto valore = Valore(testo.substr(pezzo));
        if (!valore) return EsitoLista::FuoriLimiti;
        return Aggiungi(*valore) ? EsitoLista::Riuscita : EsitoLista::Troppi;
    }

  private:
    static std::optional<std::int16_t> Valore(std::string_view pezzo) {
        return Intero16(ParteIntera(ValoreNumerico(pezzo)));
    }

    // The value, or the range that ends with it; false when the list overflows.
    bool Aggiungi(std::int16_t valore) {
        const int da = inizio_.value_or(valore);
        inizio_.reset();
        for (int n = da; n <= valore; ++n) {
            if (numeri_.size() == capacita_) return false;
            numeri_.push_back(static_cast<std::int16_t>(n));
        }
        return true;
    }

    std::size_t capacita_;
    std::vector<std::int16_t> &numeri_;
    std::optional<std::int16_t> inizio_;
};

// Which 16-bit numbers the list holds: one look-up an element instead of one pass a number.
class Insieme {
  public:
    explicit Insieme(const std::vector<std::int16_t> &numeri) : presenti_(65536, false) {
        for (std::int16_t n : numeri) presenti_[Posto(n)] = true;
    }
    bool Contiene(std::int16_t n) const { return presenti_[Posto(n)]; }

  private:
    static std::size_t Posto(std::int16_t n) { return static_cast<std::size_t>(n + 32768); }
    std::vector<bool> presenti_;
};

using Campo = std::int16_t (*)(int elemento);

// Card or name of an element by kind; nullptr where the property marks nothing.
struct Campi {
    Campo nodo = nullptr, asta = nullptr, guscio = nullptr;
    bool numeroElCont = false; // continuous elements by their own number, not by their bars
    bool elCont = true;        // continuous elements at all
};

void Segna(std::int16_t *flag, const std::int16_t *attivi, int numero, Campo campo,
           const Insieme &insieme) {
    if (!campo) return;
    const std::int16_t valore = NuovoFlag();
    for (int i = 0; i < numero; ++i)
        if (attivi[i] == 1 && insieme.Contiene(campo(i))) flag[i] = valore;
}

// Taken when one number of the list fits every bar, all of them shown; one without bars is taken by
// any number.
bool ElContPreso(int k, Campo campo, const Insieme &insieme) {
    const int aste = NumAsteElCont[k];
    if (aste == 0) return true;
    const std::int16_t numero = campo(AstaElCont(k, 0));
    if (!insieme.Contiene(numero)) return false;
    for (int j = 0; j < aste; ++j) {
        const int b = AstaElCont(k, j);
        if (AttAsta[b] != 1 || campo(b) != numero) return false;
    }
    return true;
}

void SegnaElCont(const Campi &campi, const Insieme &insieme) {
    if (!campi.asta || !campi.elCont) return;
    for (int k = 0; k < NumElCont; ++k) {
        const bool preso = campi.numeroElCont ? insieme.Contiene(NumeroElCont[k]) && ElContAttivo(k)
                                              : ElContPreso(k, campi.asta, insieme);
        if (preso) SelElCont[k] = NuovoFlag();
    }
}

bool Seleziona(const std::string &testo, int capacita, const Campi &campi) {
    std::vector<std::int16_t> numeri;
    switch (LeggiLista(testo, capacita, numeri)) {
    case EsitoLista::Troppi:
        MostraMessaggio(Messaggi[18], Icona::Esclamazione, "ERRORE");
        return false;
    case EsitoLista::FuoriLimiti:
        MostraMessaggio(" Numero fuori dai limiti ammessi (da -32768 a 32767) ",
                        Icona::Esclamazione, "ERRORE");
        return false;
    case EsitoLista::Riuscita: break;
    }
    const Insieme insieme(numeri);
    switch (FormTelva.TipoElemento()) {
    case kNodiTipo: Segna(SelNodo.Dati(), AttNodo.Dati(), NumNodi, campi.nodo, insieme); break;
    case kAsteTipo: Segna(SelAsta.Dati(), AttAsta.Dati(), NumAste, campi.asta, insieme); break;
    case kGusciTipo:
        Segna(SelGuscio.Dati(), AttGuscio.Dati(), NumGusci, campi.guscio, insieme);
        break;
    case kElContTipo:
        if (!numeri.empty()) SegnaElCont(campi, insieme);
        break;
    default: break;
    }
    DisegnaStruttura();
    AggiornaSelezione();
    return true;
}

} // namespace

EsitoLista LeggiLista(std::string_view testo, int capacita, std::vector<std::int16_t> &numeri) {
    numeri.clear();
    return LettoreLista(capacita, numeri).Leggi(testo);
}

const SchedaProprieta *ProprietaDi(std::uint8_t codice) {
    for (const SchedaProprieta &p : kProprieta)
        if (p.codice == codice) return &p;
    return nullptr;
}

void IniziaProprieta(std::uint8_t codice) {
    const SchedaProprieta *p = ProprietaDi(codice);
    if (!p) return;
    AzzeraInput();
    FormTelva.Domanda.Caption = p->domanda;
    FormTelva.SottoFunAttiva.Caption = p->titolo;
    FormTelva.Risposta.Enabled = true;
    FormTelva.Risposta.BackColor = kColoreFinestra;
    FormTelva.Risposta.SetFocus();
    CodSottoFun = codice;
}

void EseguiRisposta() {
    const SchedaProprieta *p = ProprietaDi(CodSottoFun);
    if (!p) return;
    const int rifiuto = p->rifiuto[FormTelva.TipoElemento()];
    if (rifiuto >= 0)
        MostraMessaggio(Messaggi[rifiuto], Icona::Informazione, "INFORMAZIONE");
    else if (rifiuto == kAmmesso && !FormTelva.Risposta.Text().empty())
        p->seleziona(std::string(FormTelva.Risposta.Text()));
}

bool SelezionaPerMateriale(const std::string &testo) {
    return Seleziona(testo, kCapacitaSchede,
                     {.asta = [](int b) { return MaterialeSezione(SezioneAsta[b]); },
                      .guscio = [](int s) { return MaterialeSpessore(SpessoreGuscio[s]); }});
}

bool SelezionaElementoPerNome(const std::string &testo) {
    return Seleziona(testo, kCapacitaNomi,
                     {.nodo = [](int i) { return NomeNodo[i]; },
                      .asta = [](int b) { return NomeAsta[b]; },
                      .guscio = [](int s) { return NomeGuscio[s]; },
                      .numeroElCont = true});
}

bool SelezionaPerSezione(const std::string &testo) {
    return Seleziona(testo, kCapacitaSchede, {.asta = [](int b) { return SezioneAsta[b]; }});
}

bool SelezionaPerSpessore(const std::string &testo) {
    return Seleziona(testo, kCapacitaSchede, {.guscio = [](int s) { return SpessoreGuscio[s]; }});
}

bool SelezionaPerOrientamento(const std::string &testo) {
    return Seleziona(testo, kCapacitaSchede, {.asta = [](int b) { return OrientAsta[b]; }});
}

bool SelezionaPerSvincolo(const std::string &testo) {
    return Seleziona(testo, kCapacitaSchede,
                     {.asta = [](int b) { return SvincoloAsta[b]; }, .elCont = false});
}

bool SelezionaPerVincolo(const std::string &testo) {
    return Seleziona(testo, kCapacitaSchede, {.nodo = [](int i) { return VincoloNodo[i]; }});
}

} // namespace telva
