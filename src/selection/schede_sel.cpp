#include "selection/schede_sel.h"

#include "model/tabelle_cond.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "startup/basCommon_cond.h"
#include "ui/controlli/FormTelva.h"
#include "view/visibile.h"

#include <optional>

namespace telva {
namespace {

std::int16_t MaterialeAsta(int b) { return MaterialeSezione(SezioneAsta[b]); }
std::int16_t MaterialeGuscio(int s) { return MaterialeSpessore(SpessoreGuscio[s]); }
std::int16_t Sezione(int b) { return SezioneAsta[b]; }
std::int16_t Spessore(int s) { return SpessoreGuscio[s]; }
std::int16_t Orientamento(int b) { return OrientAsta[b]; }
std::int16_t Svincolo(int b) { return SvincoloAsta[b]; }
std::int16_t Vincolo(int i) { return VincoloNodo[i]; }

constexpr SchedaProprieta kProprieta[] = {
    {kMateriale,
     "Inserire i numeri delle schede di materiale e premere INVIO",
     "Seleziona per materiale",
     "materiali presenti",
     SelezionaPerMateriale,
     {kMsgMaterialeNodi, kAmmesso, kAmmesso, kAmmesso, kAmmesso},
     {nullptr, MaterialeAsta, MaterialeGuscio, MaterialeAsta, nullptr}},
    {kNome,
     "Inserire i nomi degli elementi e premere INVIO",
     "Seleziona per nome elemento",
     "nomi presenti",
     SelezionaElementoPerNome,
     {kAmmesso, kAmmesso, kAmmesso, kAmmesso, kAmmesso},
     {}},
    {kSezione,
     "Inserire i numeri delle schede di sezione e premere INVIO",
     "Seleziona per sezione",
     "sezioni presenti",
     SelezionaPerSezione,
     {kMsgSezioneNodi, kAmmesso, kMsgSezioneGusci, kAmmesso, kIgnorato},
     {nullptr, Sezione, nullptr, Sezione, nullptr}},
    {kSpessore,
     "Inserire i numeri delle schede di spessore e premere INVIO",
     "Seleziona per spessore",
     "spessori presenti",
     SelezionaPerSpessore,
     {kMsgSpessoreNodi, kMsgSpessoreAste, kAmmesso, kMsgSpessoreElCont, kIgnorato},
     {nullptr, nullptr, Spessore, nullptr, nullptr}},
    {kOrientamento,
     "Inserire i numeri delle schede di orientamento e premere INVIO",
     "Seleziona per orientamento",
     "orientamenti presenti",
     SelezionaPerOrientamento,
     {kMsgOrientamentoNodi, kAmmesso, kMsgOrientamentoGusci, kAmmesso, kIgnorato},
     {nullptr, Orientamento, nullptr, Orientamento, nullptr}},
    {kSvincolo,
     "Inserire i numeri delle schede di svincolo e premere INVIO",
     "Seleziona per svincolo",
     "svincoli presenti",
     SelezionaPerSvincolo,
     {kMsgSvincoloNodi, kAmmesso, kMsgSvincoloGusci, kMsgSvincoloElCont, kIgnorato},
     {nullptr, Svincolo, nullptr, nullptr, nullptr}},
    {kVincolo,
     "Inserire i numeri delle schede di vincolo e premere INVIO",
     "Seleziona per vincolo",
     "vincoli presenti",
     SelezionaPerVincolo,
     {kAmmesso, kMsgVincoloAste, kMsgVincoloGusci, kMsgVincoloElCont, kIgnorato},
     {Vincolo, nullptr, nullptr, nullptr, nullptr}},
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
        for (std::int16_t n : numeri) presenti_[Indice(n)] = true;
    }
    bool Contiene(std::int16_t n) const { return presenti_[Indice(n)]; }

  private:
    static std::size_t Indice(std::int16_t n) { return static_cast<std::size_t>(n + 32768); }
    std::vector<bool> presenti_;
};

// Reads the list; one that cannot be taken shows its message: false.
bool Leggi(const std::string &testo, int capacita, std::vector<std::int16_t> &numeri) {
    switch (LeggiLista(testo, capacita, numeri)) {
    case EsitoLista::Troppi:
        MostraMessaggio(Messaggi[kMsgTroppiNumeri], Gravita::Esclamazione, "ERRORE");
        return false;
    case EsitoLista::FuoriLimiti:
        MostraMessaggio(" Numero fuori dai limiti ammessi (da -32768 a 32767) ",
                        Gravita::Esclamazione, "ERRORE");
        return false;
    case EsitoLista::Riuscita: break;
    }
    return true;
}

// True when all parts of an element have one number, which is put into `numero`; so for one without
// parts, which has none.
bool NumeroComune(const Elementi &e, int i, NumeroDiParte numeroDi,
                  std::optional<std::int16_t> &numero) {
    return e.OgniParte(i, [&](int parte) {
        const std::int16_t n = numeroDi(parte);
        if (!numero) numero = n;
        return n == *numero;
    });
}

// One number of the set fits every part; any number fits an element without parts.
bool StessaScheda(const Elementi &e, int i, NumeroDiParte numeroDi, const Insieme &insieme) {
    std::optional<std::int16_t> numero;
    return NumeroComune(e, i, numeroDi, numero) && (!numero || insieme.Contiene(*numero));
}

bool SelezionaPerScheda(std::uint8_t codice, const std::string &testo, Segno segno) {
    std::vector<std::int16_t> numeri;
    if (!Leggi(testo, kCapacitaSchede, numeri)) return false;
    const Insieme insieme(numeri);
    const Elementi &e = ElementiDi(FormTelva.TipoElemento());
    const NumeroDiParte numero = ProprietaDi(codice)->numero[e.tipo];
    if (numero && !numeri.empty())
        Segna(e, segno, [&](int i) { return StessaScheda(e, i, numero, insieme); });
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

std::vector<int> NumeriPresenti(const SchedaProprieta &proprieta, int tipo) {
    const Elementi &e = ElementiDi(tipo);
    const NumeroDiParte numero = proprieta.numero[tipo];
    std::vector<bool> presenti(INT16_MAX + 1, false);
    for (int i = 0; i < e.numero; ++i) {
        if (!Disegnato(e, i) || !e.Attivo(i)) continue;
        std::optional<std::int16_t> n;
        if (proprieta.codice == kNome)
            n = e.nomi[i];
        else if (!numero || !NumeroComune(e, i, numero, n))
            continue;
        if (n.value_or(0) > 0) presenti[static_cast<std::size_t>(*n)] = true;
    }
    std::vector<int> numeri;
    for (int n = 1; n <= INT16_MAX; ++n)
        if (presenti[static_cast<std::size_t>(n)]) numeri.push_back(n);
    return numeri;
}

void AttendiRisposta(const std::string &domanda, const std::string &testo) {
    FormTelva.Domanda.Caption = domanda;
    FormTelva.Risposta.Text = testo;
    FormTelva.Risposta.Enabled = true;
    FormTelva.Risposta.BackColor = kColoreFinestra;
    FormTelva.Risposta.SetFocus();
}

void IniziaProprieta(std::uint8_t codice) {
    const SchedaProprieta *p = ProprietaDi(codice);
    if (!p) return;
    AzzeraInput();
    AttendiRisposta(p->domanda, "");
    FormTelva.SottoFunAttiva.Caption = p->titolo;
    CodSottoFun = codice;
}

void EseguiRisposta() {
    const SchedaProprieta *p = ProprietaDi(CodSottoFun);
    if (!p) return;
    const int rifiuto = p->rifiuto[FormTelva.TipoElemento()];
    if (rifiuto >= 0)
        MostraMessaggio(Messaggi[rifiuto], Gravita::Informazione, "INFORMAZIONE");
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
    return SelezionaPerScheda(kMateriale, testo, segno);
}

bool SelezionaPerSezione(const std::string &testo, Segno segno) {
    return SelezionaPerScheda(kSezione, testo, segno);
}

bool SelezionaPerSpessore(const std::string &testo, Segno segno) {
    return SelezionaPerScheda(kSpessore, testo, segno);
}

bool SelezionaPerOrientamento(const std::string &testo, Segno segno) {
    return SelezionaPerScheda(kOrientamento, testo, segno);
}

bool SelezionaPerSvincolo(const std::string &testo, Segno segno) {
    return SelezionaPerScheda(kSvincolo, testo, segno);
}

bool SelezionaPerVincolo(const std::string &testo, Segno segno) {
    return SelezionaPerScheda(kVincolo, testo, segno);
}

} // namespace telva
