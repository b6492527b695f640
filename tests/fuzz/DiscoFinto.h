#pragma once
// A disk of files in memory: nothing of the real one is read or written.
#include "platform/archivio_disco.h"

#include <map>

namespace telva::prove {

class DiscoFinto : public Disco {
  public:
    using FileInMemoria = std::map<std::string, std::string>; // content by whole path
    FileInMemoria file;

    bool Esiste(const std::string &percorso) override { return file.contains(percorso); }
    bool Leggi(const std::string &percorso, std::string &contenuto) override {
        if (Esiste(percorso)) contenuto = file.at(percorso);
        return Esiste(percorso);
    }
    bool Protetto(const std::string &) override { return false; }
    std::unique_ptr<FileScritto> Crea(const std::string &) override {
        return std::make_unique<InMemoria>(file);
    }
    std::unique_ptr<FileScritto> Apri(const std::string &, bool &) override { return nullptr; }
    std::vector<std::string> Accanto(const std::string &) override { return {}; }
    void Sgombra(const std::string &) override {}
    std::string Segno() override { return {}; }
    void Attendi() override {}

  private:
    class InMemoria : public FileScritto {
      public:
        explicit InMemoria(FileInMemoria &file) : file_(file) {}
        bool Leggi(std::string &contenuto) override {
            contenuto = contenuto_;
            return true;
        }
        bool Scrivi(std::string_view contenuto) override {
            contenuto_ = contenuto;
            return true;
        }
        bool Tieni(const std::string &percorso) override {
            file_[percorso] = contenuto_;
            return true;
        }

      private:
        FileInMemoria &file_;
        std::string contenuto_;
    };
};

// Puts a disk in the system's place as long as it lives.
class DiscoInUso {
  public:
    explicit DiscoInUso(Disco &disco) { ImpostaDisco(&disco); }
    DiscoInUso(const DiscoInUso &) = delete;
    DiscoInUso &operator=(const DiscoInUso &) = delete;
    ~DiscoInUso() { ImpostaDisco(nullptr); }
};

} // namespace telva::prove
