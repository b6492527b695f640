#include "sostegno/Banco.h"

#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include "ui/FormTelva_gestori.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace telva::prove {
namespace fs = std::filesystem;
namespace {

struct Termine {
    int codice;
};

constexpr const char *kRadice = "impianto"; // the installation, below the temporary folder

std::string Barre(std::string percorso) {
    std::replace(percorso.begin(), percorso.end(), '\\', '/');
    return percorso;
}

// With capitals, as any folder may have them: the program itself sees only a path below it.
fs::path CartellaNuova() {
    static std::atomic<int> numero{0};
    const fs::path nome = fs::temp_directory_path() / ("Telva_Prova_" + std::to_string(::getpid()) +
                                                       "_" + std::to_string(++numero));
    fs::remove_all(nome);
    fs::create_directories(nome / kRadice);
    return nome;
}

std::vector<std::string> passi;

// Behind every failure what was done before.
class Racconto : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo &) override { passi.clear(); }
    void OnTestPartResult(const ::testing::TestPartResult &esito) override {
        if (!esito.failed() || passi.empty()) return;
        std::cout << "Steps so far:\n";
        for (const std::string &passo : passi) std::cout << "    " << passo << ";\n";
    }
};

const bool kRacconta = [] {
    ::testing::UnitTest::GetInstance()->listeners().Append(new Racconto);
    return true;
}();

} // namespace

void PrintTo(const Messaggio &m, std::ostream *os) {
    *os << "[" << m.titolo << "/" << static_cast<int>(m.gravita) << "] \"" << m.testo << "\"";
}

Banco::Banco() : prima_(fs::current_path()), temporanea_(CartellaNuova()), radice_(kRadice) {
    fs::current_path(temporanea_);
    AzzeraProgramma();
    ImpostaMessaggi([this](const std::string &testo, Gravita gravita, const std::string &titolo) {
        messaggi.push_back({testo, gravita, titolo});
    });
    ImpostaFine([](int codice) { throw Termine{codice}; });
}

Banco::~Banco() {
    ImpostaMessaggi({});
    ImpostaFine({});
    std::error_code errore;
    fs::current_path(prima_, errore);
    fs::remove_all(temporanea_, errore);
}

std::string Banco::RadiceLunga() const {
    std::string percorso = radice_;
    for (int n = 0; n < 150; ++n) percorso += "\\.";
    return percorso;
}

void Banco::Scrivi(const std::string &relativo, const std::string &byte) const {
    Nota(Scritto("Scrivi", relativo, byte));
    Metti(relativo, byte);
}

void Banco::Metti(const std::string &relativo, const std::string &byte) const {
    const fs::path file = radice_ + "/" + Barre(relativo);
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << byte;
}

std::string Banco::Leggi(const std::string &relativo) const {
    std::ifstream file(radice_ + "/" + Barre(relativo), std::ios::binary);
    if (!file) return "<assente>";
    return {std::istreambuf_iterator<char>(file), {}};
}

void Banco::Cancella(const std::string &relativo) const {
    Nota(Scritto("Cancella", relativo));
    fs::remove_all(radice_ + "/" + Barre(relativo));
}

void Banco::Installa(const std::string &lavoro) const {
    Nota(Scritto("Installa", lavoro));
    Metti("impostazioni/dirlav", radice_ + "\\lavori\r\n");
    Metti("impostazioni/lavoro", lavoro + "\r\n");
    Metti("custom/TelOpInt.txt", "8|PC1|\r\n40|PC2|\r\n12|PC3|\r\n0|PC4|\r\n5|PC5|\r\n");
    std::ifstream font(TELVA_RISORSE "/font/font.001", std::ios::binary);
    Metti("progra/font.001", {std::istreambuf_iterator<char>(font), {}});
}

void Banco::ScriviLavoro(const LavoroProva &l, const std::string &lavoro) const {
    Nota(Scritto("ScriviLavoro", lavoro) + ": " + std::to_string(l.nodi.size()) + " nodes, " +
         std::to_string(l.aste.size()) + " bars, " + std::to_string(l.gusci.size()) + " shells");
    const std::string cartella = "lavori/" + lavoro + "/";
    Metti(cartella + "STRUTTUR.STR", l.Struttura());
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
    Metti(cartella + "Ingombri.tmp", ingombri.str());
    Metti(cartella + "spessori", spessori.str());
    Metti(cartella + "sezioni_", sezioni.str());
    Metti(cartella + "el_conti.tmp", elementi.str());
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
    Nota(Scritto("Avvia", argomento));
    ArgomentoAvvio = argomento;
    codiceFine = -1;
    return Esegui([] { telva::Avvia(); });
}

void Banco::Passo(const std::string &testo, const std::function<void()> &evento) {
    if (Finito()) throw std::logic_error("the program has ended before " + testo);
    Nota(testo);
    Esegui([&] { // as the window does with every event
        evento();
        if (FormTelva.DopoEvento) FormTelva.DopoEvento();
    });
}

std::string Banco::Letterale(double v) {
    char testo[32];
    return {testo, std::to_chars(std::begin(testo), std::end(testo), v).ptr};
}

void Banco::Nota(const std::string &passo) {
    constexpr std::size_t kMostrati = 400;
    passi.push_back(passo.size() > kMostrati ? passo.substr(0, kMostrati) + "..." : passo);
}

void Banco::DimenticaPassi() { passi.clear(); }

void Banco::Apri(const LavoroProva &l, bool frontale) {
    Installa();
    ScriviLavoro(l);
    if (frontale)
        for (int k = 0; k < 3; ++k) FormTelva.Angolo[k].Text = "0";
    AvviaSenzaDireNulla();
}

void Banco::AvviaSenzaDireNulla() {
    if (!Avvia() || !messaggi.empty())
        throw std::runtime_error("the start failed: " + ::testing::PrintToString(messaggi));
}

std::string Banco::Lista() { return FormTelva.StringaSel.Caption; }

} // namespace telva::prove
