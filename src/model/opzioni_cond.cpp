#include "model/opzioni_cond.h"

#include "platform/archivio.h"
#include "platform/numeri.h"
#include "platform/testo.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"

namespace telva {

Tabella<Valore, 30> Opzioni{"Opzioni"};
Tabella<double, 6> OpzInt{"OpzInt"};

namespace {

std::string File(const char *nome) { return DirCustom + "\\" + nome; }

void OpzioniPredefinite() {
    static constexpr int kPredefinite[] = {1, 1, 1, 4, 0, 1, 5, 0, 0, 0, 5, 5, 1,
                                           5, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    int voce = 0;
    for (int valore : kPredefinite) Opzioni[voce++] = double(valore);
    Opzioni[4] = Valore{};
}

std::string TestoValore(const Valore &valore) {
    if (const auto *numero = std::get_if<double>(&valore)) return TestoNumero(*numero);
    const auto *testo = std::get_if<std::string>(&valore);
    if (!testo) return {};
    const std::string rifilato(Rifila(*testo));
    // Quotes where it would be read back as something else: a comma or line end ends a value, and
    // digits alone are a number.
    const bool virgolette =
        rifilato.find_first_of(",\r\n") != std::string::npos || NumeroStretto(rifilato).has_value();
    return virgolette && rifilato.find('"') == std::string::npos ? '"' + rifilato + '"' : rifilato;
}

// One line "value|PCn|anything"; anything else is passed over.
void LeggiRigaOpzInt(std::string_view riga) {
    const std::size_t p1 = riga.find('|');
    if (p1 == std::string_view::npos) return;
    const std::size_t p2 = riga.find('|', p1 + 1);
    if (p2 == std::string_view::npos || p2 < p1 + 3) return;
    if (Maiuscole(riga.substr(p1 + 1, 2)) != "PC") return;
    const double n = ParteIntera(ValoreNumerico(riga.substr(p1 + 3, p2 - p1 - 3)));
    if (!(n >= 1 && n <= 5)) return;
    OpzInt[static_cast<int>(n)] = ValoreNumerico(riga.substr(0, p1));
}

} // namespace

double OpzioneNumero(int voce) {
    if (const auto *numero = std::get_if<double>(&Opzioni[voce])) return *numero;
    const auto *testo = std::get_if<std::string>(&Opzioni[voce]);
    return testo ? ValoreNumerico(*testo) : 0;
}

bool OpzioneAttiva(int voce) { return OpzioneNumero(voce) == 1; }

void LeggiOpzioni() {
    FileTesto file;
    TogliProvvisori(File("TelOpzio.txt"));
    if (!file.Apri(File("TelOpzio.txt"))) {
        OpzioniPredefinite();
        return;
    }
    for (int voce = 0; voce < 30; ++voce) file.LeggiValore(Opzioni[voce]);
}

void LeggiOpzInt() {
    for (int n = 1; n <= 5; ++n) OpzInt[n] = 0;
    FileTesto file;
    if (!file.Apri(File("TelOpInt.txt"))) return;
    std::string_view riga;
    for (int n = 0; n < 5 && file.LeggiRiga(riga); ++n) LeggiRigaOpzInt(riga);
}

std::string ScriviOpzioni() {
    std::string contenuto;
    for (int voce = 0; voce < 30; ++voce) contenuto += TestoValore(Opzioni[voce]) + "\r\n";
    return ScriviFile(File("TelOpzio.txt"), AWindows1252(contenuto))
               ? Messaggi[kMsgOpzioniSalvate]
               : Messaggi[kMsgOpzioniNonSalvate];
}

void AzzeraOpzioni() {
    Opzioni.Azzera();
    OpzInt.Azzera();
}

} // namespace telva
