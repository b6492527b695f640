#include "selection/schede_sel.h"

#include "model/tabelle_cond.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "startup/basCommon_cond.h"
#include "ui/controlli/FormTelva.h"

#include <array>
#include <optional>

namespace telva {
namespace {

constexpr SchedaProprieta kProprieta[] = {
    {kMateriale,
     "Inserire i numeri delle schede di materiale e premere INVIO",
     "Seleziona per materiale",
     SelezionaPerMateriale,
     {kMsgMaterialeNodi, kAmmesso, kAmmesso, kAmmesso, kAmmesso}},
    {kNome,
     "Inserire i nomi degli elementi e premere INVIO",
     "Seleziona per nome elemento",
     SelezionaElementoPerNome,
     {kAmmesso, kAmmesso, kAmmesso, kAmmesso, kAmmesso}},
    {kSezione,
     "Inserire i numeri delle schede di sezione e premere INVIO",
     "Seleziona per sezione",
     SelezionaPerSezione,
     {kMsgSezioneNodi, kAmmesso, kMsgSezioneGusci, kAmmesso, kIgnorato}},
    {kSpessore,
     "Inserire i numeri delle schede di spessore e premere INVIO",
     "Seleziona per spessore",
     SelezionaPerSpessore,
     {kMsgSpessoreNodi, kMsgSpessoreAste, kAmmesso, kMsgSpessoreElCont, kIgnorato}},
    {kOrientamento,
     "Inserire i numeri delle schede di orientamento e premere INVIO",
     "Seleziona per orientamento",
     SelezionaPerOrientamento,
     {kMsgOrientamentoNodi, kAmmesso, kMsgOrientamentoGusci, kAmmesso, kIgnorato}},
    {kSvincolo,
     "Inserire i numeri delle schede di svincolo e premere INVIO",
     "Seleziona per svincolo",
     SelezionaPerSvincolo,
     {kMsgSvincoloNodi, kAmmesso, kMsgSvincoloGusci, kMsgSvincoloElCont, kIgnorato}},
    {kVincolo,
     "Inserire i numeri delle schede di vincolo e premere INVIO",
     "Seleziona per vincolo",
     SelezionaPerVincolo,
     {kAmmesso, kMsgVincoloAste, kMsgVincoloGusci, kMsgVincoloElCont, kIgnorato}},
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

// The card of a part (node, bar or shell) that a property goes by.
using Scheda = std::int16_t (*)(int parte);
// By element kind; nullptr where the property marks nothing.
using Schede = std::array<Scheda, kTipiElemento>;

// Reads the list; one that cannot be taken shows its message: false.
bool Leggi(const std::string &testo, int capacita, std::vector<std::int16_t> &numeri) {
    switch (LeggiLista(testo, capacita, numeri)) {
    case EsitoLista::Troppi:
        MostraMessaggio(Messaggi[kMsgTroppiNumeri], Icona::Esclamazione, "ERRORE");
        return false;
    case EsitoLista::FuoriLimiti:
        MostraMessaggio(" Numero fuori dai limiti ammessi (da -32768 a 32767) ",
                        Icona::Esclamazione, "ERRORE");
        return false;
    case EsitoLista::Riuscita: break;
    }
    return true;
}

// One number of the set fits every part; any number fits an element without parts.
bool StessaScheda(const Elementi &e, int i, Scheda scheda, const Insieme &insieme) {
    std::optional<std::int16_t> numero; // of the first part
    return e.OgniParte(i, [&](int parte) {
        const std::int16_t n = scheda(parte);
        if (numero) return n == *numero;
        numero = n;
        return insieme.Contiene(n);
    });
}

bool SelezionaPerScheda(const std::string &testo, Segno segno, const Schede &schede) {
    std::vector<std::int16_t> numeri;
    if (!Leggi(testo, kCapacitaSchede, numeri)) return false;
    const Insieme insieme(numeri);
    const Elementi &e = ElementiDi(FormTelva.TipoElemento());
    if (const Scheda scheda = schede[e.tipo]; scheda && !numeri.empty())
        Segna(e, segno, [&](int i) { return StessaScheda(e, i, scheda, insieme); });
    MostraSelezione();
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
        p->seleziona(FormTelva.Risposta.Text(), SegnoFunzione());
}

bool SelezionaElementoPerNome(const std::string &testo, Segno segno) {
    std::vector<std::int16_t> numeri;
    if (!Leggi(testo, kCapacitaNomi, numeri)) return false;
    const Insieme insieme(numeri);
    const Elementi &e = ElementiDi(FormTelva.TipoElemento());
    Segna(e, segno, [&](int i) { return insieme.Contiene(e.nomi[i]); });
    MostraSelezione();
    return true;
}

bool SelezionaPerMateriale(const std::string &testo, Segno segno) {
    const Scheda asta = [](int b) { return MaterialeSezione(SezioneAsta[b]); };
    const Scheda guscio = [](int s) { return MaterialeSpessore(SpessoreGuscio[s]); };
    return SelezionaPerScheda(testo, segno, {nullptr, asta, guscio, asta});
}

bool SelezionaPerSezione(const std::string &testo, Segno segno) {
    const Scheda asta = [](int b) { return SezioneAsta[b]; };
    return SelezionaPerScheda(testo, segno, {nullptr, asta, nullptr, asta});
}

bool SelezionaPerSpessore(const std::string &testo, Segno segno) {
    const Scheda guscio = [](int s) { return SpessoreGuscio[s]; };
    return SelezionaPerScheda(testo, segno, {nullptr, nullptr, guscio});
}

bool SelezionaPerOrientamento(const std::string &testo, Segno segno) {
    const Scheda asta = [](int b) { return OrientAsta[b]; };
    return SelezionaPerScheda(testo, segno, {nullptr, asta, nullptr, asta});
}

bool SelezionaPerSvincolo(const std::string &testo, Segno segno) {
    const Scheda asta = [](int b) { return SvincoloAsta[b]; };
    return SelezionaPerScheda(testo, segno, {nullptr, asta}); // no continuous elements
}

bool SelezionaPerVincolo(const std::string &testo, Segno segno) {
    const Scheda nodo = [](int i) { return VincoloNodo[i]; };
    return SelezionaPerScheda(testo, segno, {nodo});
}

} // namespace telva
