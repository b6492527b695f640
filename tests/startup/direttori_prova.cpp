// Arguments and settings files: they give the job's folder, or end the program with a message.
#include "platform/testo.h"
#include "sostegno/Banco.h"
#include "startup/direttori_cond.h"

namespace telva::prove {

struct DirettoriProva : Banco {
    const std::string radice = Radice();
    const std::string lavori = radice + "\\lavori"; // what dirlav holds
    const std::string argomento = Argomento();

    struct Impostazioni {
        std::string argomento, dirlav, lavoro;
    };
    bool Prosegue(const Impostazioni &i) {
        Scrivi("impostazioni/dirlav", i.dirlav);
        Scrivi("impostazioni/lavoro", i.lavoro);
        ArgomentoAvvio = i.argomento;
        messaggi.clear();
        codiceFine = -1;
        return Esegui([] {
            Direttori();
            LavoroDaArgomento();
        });
    }
};

TEST_F(DirettoriProva, GliArgomentiELeImpostazioniDannoIlLavoro) {
    struct Caso {
        Impostazioni impostazioni;
        std::string nome; // of the job, below the jobs' folder
    };
    const std::string senzaFine = "|diroot=" + radice;
    const Caso casi[] = {
        {.impostazioni = {argomento, lavori, "ab12cd \r\n"}, .nome = "ab12cd"},
        {.impostazioni = {"a " + Maiuscole(argomento), lavori + "\\\r\n", " ab12cd\nx"},
         .nome = "ab12cd"},
        {.impostazioni = {"|diroot=  " + radice + " |", " " + lavori + " ,x", "ab12cd"},
         .nome = "ab12cd"},
        {.impostazioni = {senzaFine + "\\|", '"' + Maiuscole(lavori) + "\" , x", "ab12cd"},
         .nome = "ab12cd"},
        // The argument's job goes before that of the settings.
        {.impostazioni = {argomento + "|LAVORO=xy34zw|", lavori, "ab12cd"}, .nome = "xy34zw"},
        {.impostazioni = {senzaFine + "|lavoro=  Xy34zWaltro|LAVORO=un", lavori, "ab12cd"},
         .nome = "Xy34zW"},
        {.impostazioni = {argomento + "|LAVORO=abc", lavori,
                          "citt\xE0"
                          "5"},
         .nome = "abc"},
        {.impostazioni = {argomento + "|LAVORO=CITTÀ1|", lavori, "ab12cd"}, .nome = "CITTÀ1"}};
    for (const auto &[impostazioni, nome] : casi) {
        SCOPED_TRACE(impostazioni.argomento);
        EXPECT_TRUE(Prosegue(impostazioni));
        EXPECT_EQ(NomeLavoro, nome);
        EXPECT_EQ(DirLavoro, lavori + "\\" + nome);
        EXPECT_EQ(DirRoot, radice);
        EXPECT_EQ(DirProgra, radice + "\\progra");
        EXPECT_EQ(DirCustom, radice + "\\custom");
        EXPECT_EQ(messaggi, std::vector<Messaggio>());
    }
}

TEST_F(DirettoriProva, ImpostazioniSbagliateFermanoIlProgramma) {
    struct Caso {
        Impostazioni impostazioni;
        std::string testo;
        Gravita gravita = Gravita::Esclamazione;
    };
    const std::string senzaFine = "|diroot=" + radice;
    const std::string manca = "Avvio del programma: argomento non presente";
    const std::string dirlav =
        "Errore: file " + radice + "\\impostazioni\\dirlav errato o mancante";
    const std::string lavoro =
        "Errore: file " + radice + "\\impostazioni\\lavoro errato o mancante";
    const std::string fine = "Errore: il direttorio dei lavori deve terminare con < \\lavori >";
    const std::string codice = "Errore: codice di lavoro non ammesso: ";
    const std::string buono = "ab12cd";
    const Caso casi[] = {
        {.impostazioni = {"", lavori, buono}, .testo = manca, .gravita = Gravita::Critica},
        {.impostazioni = {senzaFine, lavori, buono}, .testo = manca, .gravita = Gravita::Critica},
        {.impostazioni = {"|diroot=ab|", lavori, buono},
         .testo = "Errore: file ab\\impostazioni\\dirlav errato o mancante"},
        {.impostazioni = {argomento, "", buono}, .testo = dirlav},
        {.impostazioni = {argomento, "\r\nc:\\x\\lavori", buono}, .testo = dirlav},
        {.impostazioni = {argomento, "c:\\x\\lavoro\\", buono}, .testo = fine},
        {.impostazioni = {argomento, lavori, ""}, .testo = lavoro},
        {.impostazioni = {senzaFine + "\\|", lavori, "ab12c"}, .testo = lavoro},
        {.impostazioni = {argomento, lavori, "ab12cde"}, .testo = lavoro},
        {.impostazioni = {argomento, lavori, "..\\..\\"}, .testo = lavoro},
        {.impostazioni = {argomento + "|LAVORO=", lavori, buono}, .testo = codice},
        {.impostazioni = {argomento + "|lavoro=   ", lavori, buono}, .testo = codice},
        {.impostazioni = {argomento + "|LAVORO=..\\..\\", lavori, buono},
         .testo = codice + "..\\..\\"},
        {.impostazioni = {argomento + "|LAVORO=a|\\..\\", lavori, buono},
         .testo = codice + "a|\\..\\"}};
    for (const auto &[impostazioni, testo, gravita] : casi) {
        SCOPED_TRACE(impostazioni.argomento + " " + impostazioni.dirlav + " " +
                     impostazioni.lavoro);
        EXPECT_FALSE(Prosegue(impostazioni));
        EXPECT_EQ(messaggi, (std::vector<Messaggio>{{testo, gravita, "ERRORE"}}));
        EXPECT_EQ(codiceFine, 1);
    }
}

} // namespace telva::prove
