#include "fuzz/bersagli.h"

#include "fuzz/DiscoFinto.h"
#include "model/legfont_cond.h"
#include "model/leggstr_cond.h"
#include "model/opzioni_cond.h"
#include "model/scambio_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "platform/messaggi.h"
#include "platform/testo.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include "ui/Disegno_gestori.h"
#include "ui/FormOpt_gestori.h"
#include "ui/FormTelva_gestori.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"
#include "ui/vista_gestori.h"
#include "view/inquadra.h"
#include "view/proiezione.h"
#include "view/salva_dis_cond.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

namespace telva::prove {
namespace {

struct Fine {}; // of the program

const std::string kRadice = "c:\\t", kLavoro = kRadice + "\\lavori\\prova1",
                  kOpzioni = kRadice + "\\custom\\TelOpzio.txt";
std::vector<std::string> pezzi; // bytes of each target in this run
DiscoFinto disco;
auto &file = disco.file;

void Esigi(bool vero, const std::string &che) {
    if (!vero) throw std::logic_error(che);
}

std::vector<std::string> Dividi(const std::string &testo, char separatore) {
    std::vector<std::string> parti(1);
    for (const char c : testo)
        c == separatore ? void(parti.emplace_back()) : parti.back().push_back(c);
    return parti;
}

// Looks at the tables, and puts everything back to program start. The tables are cleared as far as
// their counts say that they were filled: clearing them whole takes longer than a run.
void ControllaEAzzera() {
    const auto flag = [](int numero, const auto &...t) {
        for (int i = 0; i < numero; ++i)
            Esigi(((t[i] == 0 || t[i] == 1) && ...), "flag other than 0 and 1");
    };
    const auto tabelle = [](std::int16_t &numero, int capacita, auto &...t) {
        Esigi(numero >= 0 && numero <= capacita, "count outside its table");
        (std::fill_n(t.Dati(), numero, std::remove_reference_t<decltype(t[0])>{}), ...);
        numero = 0;
    };
    flag(NumNodi, SelNodo, AttNodo);
    flag(NumAste, SelAsta, AttAsta);
    flag(NumGusci, SelGuscio, AttGuscio);
    flag(NumElCont, SelElCont);
    for (int k = 0; k < NumElCont; ++k)
        for (int j = 0; j < NumAsteElCont[k]; ++j) AsteElCont(k, j) = 0;
    tabelle(NumPunti, kPunti, PuntoX, PuntoY, PuntoZ);
    tabelle(NumNodi, kNodi, PuntoNodo, TipoPtNodo, ColNodo, NomeNodo, VincoloNodo, SelNodo,
            AttNodo);
    tabelle(NumAste, kAste, NodoIAsta, NodoJAsta, TipoLinAsta, ColAsta, NomeAsta, SezioneAsta,
            SvincoloAsta, OrientAsta, DatoAsta5, DatoAsta6, SelAsta, AttAsta, IngIX, IngIY, IngIZ,
            IngJX, IngJY, IngJZ);
    tabelle(NumGusci, kGusci, NodiGuscio, TrattGuscio, NomeGuscio, SpessoreGuscio, ColGuscio,
            SelGuscio, AttGuscio);
    tabelle(NumElCont, kElCont, NumeroElCont, DatoElCont2, NumAsteElCont, NomeElCont, SelElCont);
    tabelle(NumTestiFinali, kTesti, TestoFinale);
    tabelle(NumSpessori, kSchedeSpessore, MatSpessore, ValSpessore);
    tabelle(NumSezioni, kSchedeSezione, MatSezione);
    XMin = YMin = ZMin = XMax = YMax = ZMax = 0;
    PrimoPuntoContato = -1;
    for (auto *azzera : {AzzeraOpzioni, AzzeraFont, AzzeraProiezione, AzzeraDisegno, AzzeraVista,
                         AzzeraSelezione, AzzeraPuntatore})
        azzera();
    FormTelva.Inizio();
}

void Dirigi() {
    ArgomentoAvvio = pezzi[0];
    Direttori();
    LavoroDaArgomento();
}

void Ingresso() {
    std::string sel;
    CollegaFormTelva();
    LeggiIngresso(sel);
}

void Struttura() {
    std::int16_t ok = 0;
    LeggiStruttura(ok);
}

void Font() {
    LeggiFont();
    FormTelva.Disegno.Posiziona(0, 0, 1500, 1500);
    FormTelva.Disegno.Scale(0, 99, 99, 0);
    FormTelva.Disegno.Cls();
    const std::string testo = DaWindows1252(pezzi[6].substr(0, 99));
    DisTesto(testo, 9, 50, 20, 5, 8, 1, &FormTelva.Disegno);
}

void Lista() {
    for (const int capacita : {kCapacitaSchede, kCapacitaNomi}) {
        std::vector<std::int16_t> numeri;
        LeggiLista(pezzi[12], capacita, numeri);
        Esigi(numeri.size() <= static_cast<std::size_t>(capacita), "list too long");
    }
}

// A click, or a text and Enter.
void Usa(Controllo *c, const std::string &testo) {
    const auto premi = [](auto *bottone) {
        if (bottone && bottone->Enabled && bottone->Click) bottone->Click();
    };
    premi(dynamic_cast<VoceMenu *>(c));
    premi(dynamic_cast<Pulsante *>(c));
    premi(dynamic_cast<Campione *>(c));
    if (auto *spunta = dynamic_cast<CasellaSpunta *>(c)) spunta->Premi();
    if (auto *opzione = dynamic_cast<BottoneOpzione *>(c)) opzione->Seleziona();
    if (auto *casella = dynamic_cast<CasellaTesto *>(c)) {
        casella->Text = testo;
        if (casella->KeyDown) casella->KeyDown(13);
    }
}

// What the engineer does, line by line: with a control of an open window, or with the mouse.
void Comanda(const std::string &righe) {
    RiquadroDisegno &d = FormTelva.Disegno;
    for (const std::string &riga : Dividi(righe.substr(0, 300), '\n')) {
        std::vector<Controllo *> controlli(FormTelva.voci.begin(), FormTelva.voci.end());
        for (const Modulo *m : {static_cast<Modulo *>(&FormTelva), static_cast<Modulo *>(&FormOpt),
                                static_cast<Modulo *>(&FormOptInt)})
            if (m == &FormTelva || m->Mostrata())
                controlli.insert(controlli.end(), m->controlli.begin(), m->controlli.end());
        const auto numero = [&riga](std::size_t k) {
            return k < riga.size() ? static_cast<unsigned char>(riga[k]) : 0;
        };
        const int px = numero(1) * 2 - 99, py = numero(2) * 2 - 99;
        const auto x = static_cast<float>(d.XDaPixel(px)), y = static_cast<float>(d.YDaPixel(py));
        switch (numero(0)) {
        case '1': d.MouseDown(1, 0, x, y); break;
        case '4': d.MouseDown(4, 0, x, y); break;
        case 'm': d.MouseMove(0, 0, x, y); break;
        case 't': d.MouseMove(4, 0, x, y); break;
        case 'd': d.DblClick(); break;
        case 'r': FormTelva.Rotella(px); break;
        case 'e': FormTelva.KeyPress(27); break;
        case 'k': FormTelva.KeyDown(numero(1)); break;
        case 'w':
            FormTelva.Width = px * 50;
            FormTelva.Height = py * 50;
            FormTelva.Resize();
            break;
        default:
            Usa(controlli[static_cast<std::size_t>(numero(1)) % controlli.size()],
                riga.substr(std::min<std::size_t>(riga.size(), 2)));
        }
        static Superficie mostrata;
        d.ComponiElastici(mostrata, {0, 0, d.Immagine().Larghezza(), d.Immagine().Altezza()});
    }
}

void Programma() {
    FormOpt.Chiudi(); // the last run may have left them open
    FormOptInt.Chiudi();
    FormTelva.Width = FormTelva.larghezzaMinima; // a small picture is painted sooner
    FormTelva.Height = FormTelva.altezzaMinima;
    ArgomentoAvvio = pezzi[0];
    Avvia();
    std::size_t k = 0;
    const std::vector<std::string> testi = Dividi(pezzi[13], ';');
    for (Controllo *c : FormTelva.controlli)
        if (auto *casella = dynamic_cast<CasellaTesto *>(c); casella && k < testi.size())
            casella->Text = testi[k++];
    Ridis_Click();
    Comanda(pezzi[14]);
}

// Fills the files in; an empty piece is as in the good job, and "-" is a file that is not there.
void Installa(std::vector<std::string> dati) {
    pezzi = std::move(dati);
    pezzi.resize(Bersagli().size() - 1);
    file.clear();
    for (std::size_t k = 0; k < pezzi.size(); ++k) {
        const Bersaglio &b = Bersagli()[k];
        if (pezzi[k].empty()) pezzi[k] = b.buono;
        if (!b.file.empty() && pezzi[k] != "-") file[b.file] = pezzi[k];
    }
}

} // namespace

const std::vector<Bersaglio> &Bersagli() {
    static const std::vector<Bersaglio> tutti = [] {
        std::vector<Bersaglio> t = {
            {"argomento", "", Dirigi},
            {"dirlav", kRadice + "\\impostazioni\\dirlav", Dirigi},
            {"lavoro", kRadice + "\\impostazioni\\lavoro", Dirigi},
            {"TelOpzio.txt", kOpzioni, [] { LeggiOpzioni(), MostraOpzioni(); }},
            {"TelOpInt.txt", kRadice + "\\custom\\TelOpInt.txt", LeggiOpzInt},
            {"TelvaIn.txt", kLavoro + "\\TelvaIn.txt", Ingresso},
            {"font.001", kRadice + "\\progra\\font.001", Font},
            {"spessori", kLavoro + "\\spessori", [] { LeggiSpessori(); }},
            {"sezioni_", kLavoro + "\\sezioni_", [] { LeggiSezioni(); }},
            {"el_conti.tmp", kLavoro + "\\el_conti.tmp", [] { LeggiElCont(); }},
            {"STRUTTUR.STR", kLavoro + "\\STRUTTUR.STR", Struttura},
            {"Ingombri.tmp", kLavoro + "\\Ingombri.tmp", Struttura},
            {"lista", "", Lista},
            {"caselle", "", Programma},
            {"comandi", "", Programma},
            {"programma", "", Programma},
        };
        std::ifstream lavoro(TELVA_FUZZ "/lavoro.txt", std::ios::binary);
        for (Bersaglio &b : t)
            if (std::getline(lavoro, b.buono, '#')) t.back().buono += b.buono + '#';
        return t;
    }();
    return tutti;
}

void Esegui(const Bersaglio &b, const std::string &byte) {
    const auto quale = static_cast<std::size_t>(&b - Bersagli().data());
    static std::size_t ultimo = Bersagli().size();
    if (quale != std::exchange(ultimo, quale) || b.esegui == Programma)
        Installa(b.nome == "programma" ? Dividi(byte, '#') : std::vector<std::string>{});
    if (quale < pezzi.size()) pezzi[quale] = byte;
    if (!b.file.empty()) file[b.file] = byte;
    const DiscoInUso inUso(disco);
    ImpostaMessaggi([](auto &&...) {});
    ImpostaFine([](int) { throw Fine(); });
    DirRoot = kRadice, DirCustom = kRadice + "\\custom", DirProgra = kRadice + "\\progra";
    DirLavoro = kLavoro;
    DiscoFinto::FileInMemoria prima;
    if (b.esegui == Programma) prima = file;
    try {
        b.esegui();
    } catch (const Guasto &g) {
        Esigi(std::string_view(g.what()).starts_with("File "), g.what());
    } catch (const Fine &) {
    }
    file.erase(DirLavoro + "\\TelvaOut.txt");
    prima[kOpzioni] = file[kOpzioni]; // may be saved
    Esigi(b.esegui != Programma || file == prima, "a file of the job was changed");
    if (b.esegui != Dirigi && b.esegui != Lista) ControllaEAzzera();
}

} // namespace telva::prove
