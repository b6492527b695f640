#include "sostegno/Banco.h"

#include "platform/archivio_prova.h"
#include "platform/testo.h"
#include "selection/schede_sel.h"
#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include "ui/FormTelva_gestori.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace telva::prove {
namespace fs = std::filesystem;
namespace {

struct Termine {
    int codice;
};

std::string Barre(std::string percorso) {
    std::replace(percorso.begin(), percorso.end(), '\\', '/');
    return percorso;
}

std::string CartellaNuova() {
    static std::atomic<int> numero{0};
    std::string nome = Barre(fs::temp_directory_path().string()) + "/telva_prova_" +
                       std::to_string(::getpid()) + "_" + std::to_string(++numero);
    nome = Minuscole(nome); // as the program sees it
    fs::remove_all(nome);
    fs::create_directories(nome);
    return nome;
}

} // namespace

void PrintTo(const Messaggio &m, std::ostream *os) {
    *os << "[" << m.titolo << "/" << static_cast<int>(m.icona) << "] \"" << m.testo << "\"";
}

std::string LavoroProva::Struttura() const {
    std::ostringstream s;
    s << "Struttura di prova, Release 4.0\r\n" << punti.size() << "\r\n";
    for (const auto &p : punti) s << p[0] << "," << p[1] << "," << p[2] << "\r\n";
    s << nodi.size() << "\r\n";
    for (const Nodo &n : nodi)
        s << n.punto << " " << n.tipo << " " << n.colore << "\r\n"
          << n.nome << " " << n.vincolo << "\r\n";
    s << aste.size() << "\r\n";
    for (const Asta &a : aste)
        s << a.i << " " << a.j << " " << a.tipo << " " << a.colore << "\r\n"
          << a.nome << " " << a.sezione << " " << a.svincolo << " " << a.orientamento << " 0 0\r\n";
    s << gusci.size() << "\r\n";
    for (const Guscio &g : gusci)
        s << g.nodi[0] << " " << g.nodi[1] << " " << g.nodi[2] << " " << g.nodi[3] << "\r\n"
          << g.tratto << " " << g.nome << " " << g.spessore << " 1.5 " << g.colore << "\r\n";
    s << "0\r\n0\r\n0\r\n0\r\n";
    return s.str();
}

LavoroProva Telaio() {
    LavoroProva l;
    for (int riga = 0; riga < 3; ++riga)
        for (int colonna = 0; colonna < 3; ++colonna) {
            const int n = riga * 3 + colonna;
            l.punti.push_back({colonna * 100.0, 0, riga * 100.0});
            l.nodi.push_back({n, n + 1, n % 3 + 1, n % 4, riga});
        }
    int nome = 0;
    for (int riga = 0; riga < 3; ++riga)
        for (int colonna = 0; colonna < 2; ++colonna) {
            const int i = riga * 3 + colonna;
            l.aste.push_back({i, i + 1, ++nome, riga + 1, riga, riga % 2 + 1, colonna, riga + 1});
        }
    for (int colonna = 0; colonna < 3; ++colonna)
        for (int riga = 0; riga < 2; ++riga) {
            const int i = riga * 3 + colonna;
            l.aste.push_back({i, i + 3, ++nome, 5, 4, 2, 0, 7});
        }
    nome = 0;
    for (int riga = 0; riga < 2; ++riga)
        for (int colonna = 0; colonna < 2; ++colonna) {
            const int i = riga * 3 + colonna;
            l.gusci.push_back({{i, i + 1, i + 4, i + 3}, ++nome, 3 + colonna, nome, riga + 1});
        }
    l.elementi = {{10, "Trave bassa", {1, 2}}, {20, "Trave media", {3, 4}}};
    l.spessori = {{3, 20}, {4, 0.5}};
    l.sezioni = {1, 2};
    return l;
}

Banco::Banco() : cartella_(CartellaNuova()), radice_(cartella_) {
    std::replace(radice_.begin(), radice_.end(), '/', '\\');
    AzzeraProgramma();
    GuastoScrittura() = {};
    ImpostaMessaggi([this](const std::string &testo, Icona icona, const std::string &titolo) {
        messaggi.push_back({testo, icona, titolo});
    });
    ImpostaFine([](int codice) { throw Termine{codice}; });
}

Banco::~Banco() {
    ImpostaMessaggi({});
    ImpostaFine({});
    std::error_code errore;
    fs::remove_all(cartella_, errore);
}

void Banco::Scrivi(const std::string &relativo, const std::string &byte) const {
    const fs::path file = cartella_ + "/" + Barre(relativo);
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << byte;
}

std::string Banco::Leggi(const std::string &relativo) const {
    std::ifstream file(cartella_ + "/" + Barre(relativo), std::ios::binary);
    if (!file) return "<assente>";
    return {std::istreambuf_iterator<char>(file), {}};
}

void Banco::Cancella(const std::string &relativo) const {
    fs::remove_all(cartella_ + "/" + Barre(relativo));
}

void Banco::Installa(const std::string &lavoro) const {
    Scrivi("impostazioni/dirlav", radice_ + "\\lavori\r\n");
    Scrivi("impostazioni/lavoro", lavoro + "\r\n");
    Scrivi("custom/TelOpInt.txt", "8|PC1|\r\n40|PC2|\r\n12|PC3|\r\n0|PC4|\r\n5|PC5|\r\n");
    fs::create_directories(cartella_ + "/progra");
    fs::copy_file(TELVA_RISORSE "/font/font.001", cartella_ + "/progra/font.001",
                  fs::copy_options::overwrite_existing);
}

void Banco::ScriviLavoro(const LavoroProva &l, const std::string &lavoro) const {
    const std::string cartella = "lavori/" + lavoro + "/";
    Scrivi(cartella + "STRUTTUR.STR", l.Struttura());
    std::ostringstream ingombri, spessori, sezioni, elementi;
    for (const auto &a : l.aste)
        if (a.nome > 0) ingombri << "0 0 0\r\n1 1 1\r\n";
    spessori << l.spessori.size() << "\r\n";
    for (const auto &s : l.spessori)
        spessori << "1 " << s.materiale << " 0 " << s.valore << " 0\r\n";
    sezioni << l.sezioni.size() << "\r\n";
    for (int m : l.sezioni) sezioni << "1 0 " << m << " 0 0 0 0 0 0 0 0 0 0 0 0\r\n";
    elementi << l.elementi.size() << "\r\n";
    for (const auto &e : l.elementi) {
        elementi << e.numero << ",0,\"" << e.nome << "\"\r\n" << e.aste.size();
        for (int a : e.aste) elementi << " " << a;
        elementi << "\r\n";
    }
    Scrivi(cartella + "Ingombri.tmp", ingombri.str());
    Scrivi(cartella + "spessori", spessori.str());
    Scrivi(cartella + "sezioni_", sezioni.str());
    Scrivi(cartella + "el_conti.tmp", elementi.str());
}

void Banco::ScriviIngresso(const std::string &titolo, const std::string &lista, int tipo) const {
    Scrivi("lavori/prova1/TelvaIn.txt",
           titolo + "\r\n" + lista + "\r\n" + std::to_string(tipo) + "\r\n");
}

bool Banco::Esegui(const std::function<void()> &evento) {
    try {
        EseguiProtetto(evento);
        return true;
    } catch (const Termine &t) {
        codiceFine = t.codice;
        return false;
    }
}

bool Banco::Avvia(const std::string &argomento) {
    ArgomentoAvvio = argomento;
    return Esegui([] { telva::Avvia(); });
}

void Banco::Apri(const LavoroProva &l, bool frontale) {
    Installa();
    ScriviLavoro(l);
    if (frontale)
        for (int k = 0; k < 3; ++k) FormTelva.Angolo[k].Text = "0";
    ASSERT_TRUE(Avvia());
    ASSERT_EQ(messaggi.size(), 0u) << messaggi[0].testo;
}

void Banco::Rispondi(const std::string &testo) {
    FormTelva.Risposta.Text = testo;
    FormTelva.Risposta.KeyDown(13);
}

std::string Banco::Lista() { return FormTelva.StringaSel.Caption; }

} // namespace telva::prove
