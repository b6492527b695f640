#include "platform/file_testo.h"

#include "platform/archivio.h"
#include "platform/numeri.h"
#include "platform/testo.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace telva {
namespace {

constexpr char kFineFile = '\x1A';

bool FineRiga(char c) { return c == '\n' || c == '\r'; }
bool FineNumero(char c) { return c == ',' || c == ' ' || c == '\t' || FineRiga(c); }

// The plain decimal number that nearly every value is: up to 15 digits and no exponent, which one
// division of two exact numbers turns into the nearest double. The end of the value, or nullptr
// when it is anything else.
const char *NumeroSemplice(const char *p, const char *fine, double &valore) {
    static constexpr double kPotenze[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                          1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool negativo = *p == '-';
    if (negativo) ++p;
    std::uint64_t cifre = 0;
    int numero = 0, decimali = 0;
    for (bool punto = false; p != fine; ++p) {
        if (*p >= '0' && *p <= '9') {
            cifre = cifre * 10 + static_cast<std::uint64_t>(*p - '0');
            if (++numero > 15) return nullptr;
            decimali += punto ? 1 : 0;
        } else if (*p == '.' && !punto) {
            punto = true;
        } else {
            break;
        }
    }
    if (numero == 0 || (p != fine && !FineNumero(*p))) return nullptr;
    const double assoluto = static_cast<double>(cifre) / kPotenze[decimali];
    valore = negativo ? -assoluto : assoluto;
    return p;
}

} // namespace

bool FileTesto::Apri(const std::string &percorso) {
    percorso_ = percorso;
    std::string contenuto;
    if (!LeggiFile(percorso, contenuto)) return false;
    ApriContenuto(std::move(contenuto));
    return true;
}

void FileTesto::ApriContenuto(std::string contenuto) {
    const std::string_view marca = std::string_view(contenuto).substr(0, 2);
    utf8_ = true;
    if (contenuto.starts_with("\xEF\xBB\xBF")) {
        byte_ = Utf8Risanato(std::string_view(contenuto).substr(3));
    } else if (marca == "\xFF\xFE" || marca == "\xFE\xFF") {
        byte_ = DaUtf16(std::string_view(contenuto).substr(2), marca == "\xFE\xFF");
    } else {
        utf8_ = false;
        byte_ = std::move(contenuto);
    }
    byte_.resize(std::min(byte_.find(kFineFile), byte_.size()));
    posto_ = 0;
    righePassate_ = 0;
    riga_ = 0;
}

std::string FileTesto::Testo(std::string_view byte) const {
    return utf8_ ? std::string(byte) : DaWindows1252(byte);
}

void FileTesto::ConsumaFineRiga() {
    if (Finito()) return;
    if (byte_[posto_] == '\r') {
        ++posto_;
        if (!Finito() && byte_[posto_] == '\n') ++posto_;
        ++righePassate_;
    } else if (byte_[posto_] == '\n') {
        ++posto_;
        ++righePassate_;
    }
}

void FileTesto::SaltaVuoti() {
    while (!Finito() && (byte_[posto_] == ' ' || byte_[posto_] == '\t')) ++posto_;
}

void FileTesto::SaltaVuotiERighe() {
    SaltaVuoti();
    while (!Finito() && FineRiga(byte_[posto_])) {
        ConsumaFineRiga();
        SaltaVuoti();
    }
}

bool FileTesto::LeggiRiga(std::string_view &riga) {
    if (Finito()) return false;
    riga_ = righePassate_ + 1;
    const std::size_t inizio = posto_;
    while (!Finito() && !FineRiga(byte_[posto_])) ++posto_;
    riga = std::string_view(byte_).substr(inizio, posto_ - inizio);
    if (Finito()) ++righePassate_; // the last line has no end of its own
    ConsumaFineRiga();
    return true;
}

void FileTesto::FinisciRiga() {
    std::string_view resto;
    if (righePassate_ < riga_) LeggiRiga(resto);
}

bool FileTesto::LeggiRigaTesto(std::string &riga) {
    std::string_view byte;
    if (!LeggiRiga(byte)) return false;
    riga = Testo(byte);
    return true;
}

// After a value: blanks, then one comma or one line end belong to it.
void FileTesto::ConsumaFineValore() {
    SaltaVuoti();
    if (Finito()) return;
    if (byte_[posto_] == ',')
        ++posto_;
    else
        ConsumaFineRiga();
}

Lettura FileTesto::LeggiNumero(double &valore) {
    SaltaVuotiERighe();
    if (Finito()) return Lettura::FineFile;
    riga_ = righePassate_ + 1;
    const char *inizio = byte_.data() + posto_;
    const char *fineByte = byte_.data() + byte_.size();
    if (const char *fine = NumeroSemplice(inizio, fineByte, valore)) {
        posto_ += static_cast<std::size_t>(fine - inizio);
        ConsumaFineValore();
        return Lettura::Riuscita;
    }
    const char *fine = inizio;
    while (fine != fineByte && !FineNumero(*fine)) ++fine;
    const std::string_view testo(inizio, static_cast<std::size_t>(fine - inizio));
    const auto numero = testo.empty() ? std::optional<double>(0) : NumeroStretto(testo);
    posto_ += testo.size();
    ConsumaFineValore();
    if (!numero) return Lettura::Malformata;
    valore = *numero;
    return Lettura::Riuscita;
}

std::string_view FileTesto::ProssimoTesto(bool &traVirgolette) {
    SaltaVuoti();
    riga_ = righePassate_ + 1;
    traVirgolette = !Finito() && byte_[posto_] == '"';
    if (traVirgolette) ++posto_;
    const std::size_t inizio = posto_;
    while (!Finito() && !(traVirgolette ? byte_[posto_] == '"'
                                        : byte_[posto_] == ',' || FineRiga(byte_[posto_]))) {
        if (FineRiga(byte_[posto_]))
            ConsumaFineRiga();
        else
            ++posto_;
    }
    const std::string_view testo = std::string_view(byte_).substr(inizio, posto_ - inizio);
    if (traVirgolette && !Finito()) ++posto_;
    ConsumaFineValore();
    return testo;
}

Lettura FileTesto::LeggiTesto(std::string &testo) {
    if (Finito()) return Lettura::FineFile;
    bool traVirgolette = false;
    const std::string_view letto = ProssimoTesto(traVirgolette);
    testo = Testo(traVirgolette ? letto : Rifila(letto));
    return Lettura::Riuscita;
}

Lettura FileTesto::LeggiValore(Valore &valore) {
    if (Finito()) return Lettura::FineFile;
    bool traVirgolette = false;
    const std::string_view letto = ProssimoTesto(traVirgolette);
    if (traVirgolette)
        valore = Testo(letto);
    else if (Rifila(letto).empty())
        valore = std::monostate{};
    else if (const auto numero = NumeroStretto(letto))
        valore = *numero;
    else
        valore = Testo(Rifila(letto));
    return Lettura::Riuscita;
}

void FileTesto::SaltaValore() {
    SaltaVuotiERighe();
    bool traVirgolette = false;
    if (!Finito() && byte_[posto_] == '"') {
        ProssimoTesto(traVirgolette);
        return;
    }
    while (!Finito() && !FineNumero(byte_[posto_])) ++posto_;
    ConsumaFineValore();
}

} // namespace telva
