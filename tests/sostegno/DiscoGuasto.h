#pragma once
// The system's disk with faults on demand, in the system's place as long as the object lives.
#include "platform/archivio_disco.h"

namespace telva::prove {

class DiscoGuasto : public Disco {
  public:
    std::size_t spazio = std::string::npos; // bytes a file may hold: a longer write stops there
    bool nessunFileNuovo = false;           // the folder takes no new file
    bool nessunProvvisorio = false;         // it takes none with the name of a temporary
    int sostituzioniNegate = 0;             // so many times somebody holds the file to be replaced
    int apertureNegate = 0;                 // so many times somebody else is writing the file
    std::vector<std::string> numeri;        // of the next temporaries, the last one first
    int attese = 0;                         // pauses that were asked for

    DiscoGuasto() { ImpostaDisco(this); }
    DiscoGuasto(const DiscoGuasto &) = delete;
    DiscoGuasto &operator=(const DiscoGuasto &) = delete;
    ~DiscoGuasto() override { ImpostaDisco(nullptr); }

    bool Esiste(const std::string &percorso) override { return vero_.Esiste(percorso); }
    bool Leggi(const std::string &percorso, std::string &contenuto) override {
        return vero_.Leggi(percorso, contenuto);
    }
    bool Protetto(const std::string &percorso) override { return vero_.Protetto(percorso); }
    std::unique_ptr<FileScritto> Crea(const std::string &percorso) override {
        const bool provvisorio = percorso.find(".~") != std::string::npos;
        if (nessunFileNuovo || (nessunProvvisorio && provvisorio)) return nullptr;
        return Guasta(vero_.Crea(percorso));
    }
    std::unique_ptr<FileScritto> Apri(const std::string &percorso, bool &occupato) override {
        occupato = apertureNegate > 0;
        if (occupato) {
            --apertureNegate;
            return nullptr;
        }
        return Guasta(vero_.Apri(percorso, occupato));
    }
    std::vector<std::string> Accanto(const std::string &percorso) override {
        return vero_.Accanto(percorso);
    }
    void Sgombra(const std::string &percorso) override { vero_.Sgombra(percorso); }
    std::string NumeroProprio() override {
        if (numeri.empty()) return vero_.NumeroProprio();
        const std::string numero = numeri.back();
        numeri.pop_back();
        return numero;
    }
    void Attendi() override { ++attese; }

  private:
    class File : public FileScritto {
      public:
        File(DiscoGuasto &disco, std::unique_ptr<FileScritto> vero)
            : disco_(disco), vero_(std::move(vero)) {}
        bool Leggi(std::string &contenuto) override { return vero_->Leggi(contenuto); }
        bool Scrivi(std::string_view contenuto) override {
            return vero_->Scrivi(contenuto.substr(0, disco_.spazio)) &&
                   contenuto.size() <= disco_.spazio;
        }
        bool Tieni(const std::string &percorso) override {
            if (disco_.sostituzioniNegate > 0) {
                --disco_.sostituzioniNegate;
                return false;
            }
            return vero_->Tieni(percorso);
        }

      private:
        DiscoGuasto &disco_;
        std::unique_ptr<FileScritto> vero_;
    };

    std::unique_ptr<FileScritto> Guasta(std::unique_ptr<FileScritto> vero) {
        if (!vero) return nullptr;
        return std::make_unique<File>(*this, std::move(vero));
    }

    Disco &vero_ = DiscoDelSistema();
};

} // namespace telva::prove
