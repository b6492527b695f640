#include "fuzz/bersagli.h"

#include "model/legfont_cond.h"
#include "model/leggstr_cond.h"
#include "model/opzioni_cond.h"
#include "model/scambio_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "platform/archivio_disco.h"
#include "platform/messaggi.h"
#include "platform/tasti.h"
#include "platform/testo.h"
#include "selection/schede_sel.h"
#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include "ui/FormOpt_gestori.h"
#include "ui/FormTelva_gestori.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"
#include "view/salva_dis_cond.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>

namespace telva::prove {
namespace {

struct Fine {}; // of the program

const std::string kRadice = "c:\\t", kLavoro = kRadice + "\\lavori\\prova1",
                  kOpzioni = kRadice + "\\custom\\TelOpzio.txt";
std::vector<std::string> pezzi;          // bytes of each target in this run
std::map<std::string, std::string> file; // their contents by whole path

constexpr int kSinistro = 1, kCentrale = 4; // mouse buttons

// Of the target of that name.
std::string &Pezzo(std::string_view nome) {
    const auto quale = std::ranges::find(Bersagli(), nome, &Bersaglio::nome);
    return pezzi.at(static_cast<std::size_t>(quale - Bersagli().begin()));
}

void Esigi(bool vero, const std::string &che) {
    if (!vero) throw std::logic_error(che);
}

// Files in memory, in the system's place as long as the object lives. Nothing can be written, and
// nothing but the answer and the options is ever asked to be.
class DiscoFinto : public Disco {
  public:
    DiscoFinto() { ImpostaDisco(this); }
    ~DiscoFinto() override { ImpostaDisco(nullptr); }
    bool Esiste(const std::string &percorso) override { return file.contains(percorso); }
    bool Leggi(const std::string &percorso, std::string &contenuto) override {
        if (Esiste(percorso)) contenuto = file.at(percorso);
        return Esiste(percorso);
    }
    bool Protetto(const std::string &) override { return false; }
    std::unique_ptr<FileScritto> Crea(const std::string &percorso) override {
        Esigi(percorso.starts_with(DirLavoro + "\\TelvaOut.txt") || percorso.starts_with(kOpzioni),
              "another file is written: " + percorso);
        return nullptr;
    }
    std::unique_ptr<FileScritto> Apri(const std::string &percorso, bool &) override {
        return Crea(percorso);
    }
    std::vector<std::string> Accanto(const std::string &) override { return {}; }
    void Sgombra(const std::string &) override {}
    std::string NumeroProprio() override { return {}; }
    void Attendi() override {}
};

std::vector<std::string> Dividi(const std::string &testo, char separatore) {
    std::vector<std::string> parti(1);
    for (const char c : testo)
        c == separatore ? void(parti.emplace_back()) : parti.back().push_back(c);
    return parti;
}

void ControllaTabelle() {
    const auto flag = [](int numero, int capacita, const auto &...t) {
        Esigi(numero >= 0 && numero <= capacita, "count outside its table");
        for (int i = 0; i < numero; ++i)
            Esigi(((t[i] == 0 || t[i] == 1) && ...), "flag other than 0 and 1");
    };
    flag(NumPunti, kPunti);
    flag(NumNodi, kNodi, SelNodo, AttNodo);
    flag(NumAste, kAste, SelAsta, AttAsta);
    flag(NumGusci, kGusci, SelGuscio, AttGuscio);
    flag(NumElCont, kElCont, SelElCont);
    flag(NumTestiFinali, kTesti);
    flag(NumSpessori, kSchedeSpessore);
    flag(NumSezioni, kSchedeSezione);
}

void Dirigi() {
    ArgomentoAvvio = Pezzo("argomento");
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
    const std::string testo = DaWindows1252(Pezzo("font.001").substr(0, 99));
    DisTesto(testo, 9, 50, 20, 5, 8, 1, &FormTelva.Disegno);
}

void Lista() {
    for (const int capacita : {kCapacitaSchede, kCapacitaNomi}) {
        std::vector<std::int16_t> numeri;
        LeggiLista(Pezzo("lista"), capacita, numeri);
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
        if (casella->KeyDown) casella->KeyDown(kTastoInvio);
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
        case '1': d.MouseDown(kSinistro, 0, x, y); break;
        case '4': d.MouseDown(kCentrale, 0, x, y); break;
        case 'm': d.MouseMove(0, 0, x, y); break;
        case 't': d.MouseMove(kCentrale, 0, x, y); break;
        case 'd': d.DblClick(); break;
        case 'r': FormTelva.Rotella(px); break;
        case 'k': FormTelva.KeyDown(numero(1)); break;
        default:
            Usa(controlli[static_cast<std::size_t>(numero(1)) % controlli.size()],
                riga.substr(std::min<std::size_t>(riga.size(), 2)));
        }
        const ZonaPixel tutto{0, 0, d.Immagine().Larghezza(), d.Immagine().Altezza()};
        d.ComponiElastici({&tutto, 1}, [](const Superficie &, const ZonaPixel &) {});
    }
}

void Programma() {
    FormOpt.Chiudi(); // the last run may have left them open
    FormOptInt.Chiudi();
    FormTelva.Width = FormTelva.larghezzaMinima; // a small picture is painted sooner
    FormTelva.Height = FormTelva.altezzaMinima;
    ArgomentoAvvio = Pezzo("argomento");
    Avvia();
    Comanda(Pezzo("comandi"));
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
            {.nome = "argomento", .file = "", .esegui = Dirigi},
            {.nome = "dirlav", .file = kRadice + "\\impostazioni\\dirlav", .esegui = Dirigi},
            {.nome = "lavoro", .file = kRadice + "\\impostazioni\\lavoro", .esegui = Dirigi},
            {.nome = "TelOpzio.txt",
             .file = kOpzioni,
             .esegui = [] { LeggiOpzioni(), MostraOpzioni(); }},
            {.nome = "TelOpInt.txt",
             .file = kRadice + "\\custom\\TelOpInt.txt",
             .esegui = LeggiOpzInt},
            {.nome = "TelvaIn.txt", .file = kLavoro + "\\TelvaIn.txt", .esegui = Ingresso},
            {.nome = "font.001", .file = kRadice + "\\progra\\font.001", .esegui = Font},
            {.nome = "spessori", .file = kLavoro + "\\spessori", .esegui = [] { LeggiSpessori(); }},
            {.nome = "sezioni_", .file = kLavoro + "\\sezioni_", .esegui = [] { LeggiSezioni(); }},
            {.nome = "el_conti.tmp",
             .file = kLavoro + "\\el_conti.tmp",
             .esegui = [] { LeggiElCont(); }},
            {.nome = "STRUTTUR.STR", .file = kLavoro + "\\STRUTTUR.STR", .esegui = Struttura},
            {.nome = "Ingombri.tmp", .file = kLavoro + "\\Ingombri.tmp", .esegui = Struttura},
            {.nome = "lista", .file = "", .esegui = Lista},
            {.nome = "comandi", .file = "", .esegui = Programma},
            {.nome = "programma", .file = "", .esegui = Programma},
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
    const DiscoFinto disco;
    ImpostaMessaggi([](auto &&...) {});
    ImpostaFine([](int) { throw Fine(); });
    DirRoot = kRadice, DirCustom = kRadice + "\\custom", DirProgra = kRadice + "\\progra";
    DirLavoro = kLavoro;
    try {
        b.esegui();
    } catch (const Guasto &g) {
        Esigi(std::string_view(g.what()).starts_with("File "), g.what());
    } catch (const Fine &) {
    }
    ControllaTabelle();
    if (b.esegui != Dirigi && b.esegui != Lista) AzzeraProgramma();
}

} // namespace telva::prove
