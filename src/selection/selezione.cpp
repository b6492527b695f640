#include "selection/selezione.h"

#include "model/scambio_cond.h"
#include "platform/numeri.h"
#include "platform/testo.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/proiezione.h"

#include <algorithm>
#include <array>

namespace telva {

std::uint8_t CodFunAttiva = kNessunaFunzione;
std::uint8_t CodSottoFun = kNessuna;

namespace {

struct ComandoSelezioni {
    VoceMenu *voce;
    std::vector<TipoElemento> senza = {}; // kinds for which it makes no sense
};

std::span<const ComandoSelezioni> ComandiSelezioni() {
    ModuloTelva &f = FormTelva;
    static const ComandoSelezioni kComandi[] = {
        {&f.Finestra},
        {&f.Colore},
        {&f.TipoPunto, {kAsteTipo, kGusciTipo, kElContTipo}},
        {&f.TipoLinea, {kNodiTipo, kGusciTipo}},
        {&f.TipoTratt, {kNodiTipo, kAsteTipo, kElContTipo}},
        {&f.Materiale, {kNodiTipo}},
        {&f.Nome},
        {&f.Tutto},
        {&f.SchSezione, {kNodiTipo, kGusciTipo}},
        {&f.SchSpessore, {kNodiTipo, kAsteTipo, kElContTipo}},
        {&f.SchSvincolo, {kNodiTipo, kGusciTipo, kElContTipo}},
        {&f.SchOrientamento, {kNodiTipo, kGusciTipo}},
        {&f.SchVincolo, {kAsteTipo, kGusciTipo, kElContTipo}},
    };
    return kComandi;
}

// One pass of a stable counting sort by eight bits of the name.
void OrdinaPerByte(const std::vector<std::uint32_t> &da, std::vector<std::uint32_t> &a, int bit) {
    std::array<std::size_t, 257> posti{};
    for (std::uint32_t v : da) ++posti[((v >> bit) & 0xFF) + 1];
    for (std::size_t i = 1; i < posti.size(); ++i) posti[i] += posti[i - 1];
    for (std::uint32_t v : da) a[posti[(v >> bit) & 0xFF]++] = v;
}

// The list is read by the neighbouring program, which wants the lowest name of the kind doubled at
// its head when it is selected.
std::string TestaDoppia(int primo) { return primo > 0 ? TestoNumero(primo) : std::string(); }

void ChiudiTratto(std::string &lista, int inizio, int ultimo) {
    if (inizio < 1) return;
    if (!lista.empty()) lista += ',';
    lista += TestoNumero(inizio);
    if (ultimo > inizio) lista += '-' + TestoNumero(ultimo);
}

} // namespace

void AzzeraInput() {
    CodSottoFun = kNessuna;
    FormTelva.SottoFunAttiva.Caption = "";
    FormTelva.Domanda.Caption = "";
    FormTelva.Risposta.Text = "";
    FormTelva.Risposta.BackColor = kColoreFaccia;
    FormTelva.Risposta.Enabled = false;
    FormTelva.Disegno.MousePointer = Puntatore::Predefinito;
}

void AbilitaComandi() {
    const int tipo = FormTelva.TipoElemento();
    for (const ComandoSelezioni &c : ComandiSelezioni())
        c.voce->Enabled = std::ranges::find(c.senza, tipo) == c.senza.end();
}

void DisabilitaComandi() {
    for (const ComandoSelezioni &c : ComandiSelezioni()) c.voce->Enabled = false;
}

void InvertiSelezione() {
    Segna(ElementiDi(FormTelva.TipoElemento()), Segno::Invertito, [](int) { return true; });
}

void MostraSelezione() {
    DisegnaStruttura();
    AggiornaSelezione();
}

void RicostruisciLista(int tipo) {
    if (tipo != kParetiTipo && Proiettata()) StrSel(tipo) = FormattaListaSel(OrdinaNumeriSel(tipo));
}

void AggiornaSelezione() {
    const int tipo = FormTelva.TipoElemento();
    RicostruisciLista(tipo);
    MostraStringaSel(tipo);
}

void MostraStringaSel(int tipo) {
    FormTelva.StringaSel.Caption = std::string(Rifila(StrSel(tipo)));
}

// Names are 16-bit, so two passes of a counting sort give at once what exchanging neighbours until
// nothing moves gives: ascending, equal names in the order of the file.
std::vector<int> OrdinaNumeriSel(int tipo) {
    const Elementi &e = ElementiDi(tipo);
    const auto n = static_cast<std::size_t>(e.numero);
    std::vector<std::uint32_t> coppie(n), appoggio(n);
    for (int i = 0; i < e.numero; ++i)
        coppie[static_cast<std::size_t>(i)] = static_cast<std::uint32_t>(e.nomi[i] + 32768) << 1 |
                                              static_cast<std::uint32_t>(e.Selezionato(i) ? 1 : 0);
    OrdinaPerByte(coppie, appoggio, 1);
    OrdinaPerByte(appoggio, coppie, 9);
    std::vector<int> nomi(n);
    for (std::size_t i = 0; i < n; ++i) {
        const int nome = static_cast<int>(coppie[i] >> 1) - 32768;
        nomi[i] = nome > 0 && (coppie[i] & 1) == 0 ? -nome : nome;
    }
    return nomi;
}

std::string FormattaListaSel(std::span<const int> nomi) {
    if (nomi.empty()) return {};
    std::string lista = TestaDoppia(nomi[0]);
    int inizio = nomi[0], ultimo = nomi[0];
    for (const int nome : nomi.subspan(1)) {
        if (nome <= 0) continue;
        if (nome != ultimo + 1) {
            ChiudiTratto(lista, inizio, ultimo);
            inizio = ultimo = nome;
        } else if (inizio < 1) { // name 1 right after an absent element: the run begins here
            inizio = nome;
        } else {
            ultimo = nome;
        }
    }
    ChiudiTratto(lista, inizio, ultimo);
    return lista;
}

std::string FormattaNumeri(const std::vector<int> &numeri) {
    std::vector<int> dopoUnAssente = {-2}; // no run begins there, and nothing is doubled
    dopoUnAssente.insert(dopoUnAssente.end(), numeri.begin(), numeri.end());
    return FormattaListaSel(dopoUnAssente);
}

void AzzeraSelezione() {
    CodFunAttiva = kNessunaFunzione;
    CodSottoFun = kNessuna;
    for (auto *lista : {&StrSelNodi, &StrSelAste, &StrSelGusci, &StrSelElCont, &StrSelPareti})
        lista->clear();
}

} // namespace telva
