#include "startup/direttori_cond.h"

#include "platform/citazione.h"
#include "platform/file_testo.h"
#include "platform/messaggi.h"
#include "platform/testo.h"

namespace telva {

std::string ArgomentoAvvio;
std::string DirRoot;
std::string DirLavoro;
std::string NomeLavoro;
std::string DirProgra;
std::string DirDriver;
std::string DirCustom;
std::string TitoloIn;

namespace {

constexpr std::size_t kCaratteriLavoro = 6;

// A job code names one folder below the jobs folder and nothing else.
bool CodiceAmmesso(std::string_view codice) {
    for (char c : codice)
        if (static_cast<unsigned char>(c) < ' ' ||
            std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos)
            return false;
    // Nor the jobs folder itself or the one above it.
    return !codice.empty() && codice != "." && codice.find("..") == std::string_view::npos;
}

[[noreturn]] void Termina(const std::string &testo, Gravita gravita = Gravita::Esclamazione) {
    MostraMessaggio(testo, gravita, "ERRORE");
    FineProgramma(kFineDaSe);
}

[[noreturn]] void TerminaFileErrato(const char *file) {
    Termina("Errore: file " + CitaPercorso(DirRoot + "\\impostazioni\\" + file) +
            " errato o mancante");
}

std::string RadiceDaArgomento() {
    static constexpr std::string_view kChiave = "|diroot=";
    const char *kMancante = "Avvio del programma: argomento non presente";
    const std::string argomento = Minuscole(ArgomentoAvvio);
    const std::size_t chiave = argomento.find(kChiave);
    if (chiave == std::string::npos) Termina(kMancante, Gravita::Critica);
    const std::size_t inizio = chiave + kChiave.size();
    const std::size_t fine = argomento.find('|', inizio);
    if (fine == std::string::npos) Termina(kMancante, Gravita::Critica);
    return std::string(Rifila(std::string_view(argomento).substr(inizio, fine - inizio)));
}

// The folder of all jobs, ending in "lavori\".
std::string CartellaLavori() {
    FileTesto file;
    std::string letto;
    if (!file.Apri(DirRoot + "\\impostazioni\\dirlav") ||
        file.LeggiTesto(letto) != Lettura::Riuscita)
        TerminaFileErrato("dirlav");
    std::string cartella = Minuscole(Rifila(letto));
    if (NumeroCaratteri(cartella) < 9) TerminaFileErrato("dirlav");
    if (cartella.back() != '\\') cartella += '\\';
    if (!std::string_view(cartella).substr(0, cartella.size() - 1).ends_with("lavori"))
        Termina("Errore: il direttorio dei lavori deve terminare con < \\lavori >");
    return cartella;
}

} // namespace

void Direttori() {
    DirRoot = RadiceDaArgomento();
    const std::string lavori = CartellaLavori();
    if (NumeroCaratteri(DirRoot) < 3) TerminaFileErrato("dirlav");
    if (DirRoot.back() == '\\') DirRoot.pop_back();
    FileTesto file;
    std::string riga;
    if (!file.Apri(DirRoot + "\\impostazioni\\lavoro") || !file.LeggiRigaTesto(riga))
        TerminaFileErrato("lavoro");
    NomeLavoro = Rifila(riga);
    if (NumeroCaratteri(NomeLavoro) != kCaratteriLavoro || !CodiceAmmesso(NomeLavoro))
        TerminaFileErrato("lavoro");
    DirLavoro = lavori + NomeLavoro;
    DirProgra = DirRoot + "\\progra";
    DirDriver = DirRoot + "\\driver";
    DirCustom = DirRoot + "\\custom";
}

void LavoroDaArgomento() {
    static constexpr std::string_view kChiave = "|LAVORO=";
    const std::size_t chiave = Maiuscole(ArgomentoAvvio).find(kChiave);
    if (chiave == std::string::npos) return;
    const std::string_view valore =
        Rifila(std::string_view(ArgomentoAvvio).substr(chiave + kChiave.size()));
    const std::string codice(valore.substr(0, ByteDiCaratteri(valore, kCaratteriLavoro)));
    if (!CodiceAmmesso(codice)) Termina("Errore: codice di lavoro non ammesso: " + Cita(codice));
    DirLavoro.resize(DirLavoro.size() - NomeLavoro.size());
    NomeLavoro = codice;
    DirLavoro += NomeLavoro;
}

} // namespace telva
