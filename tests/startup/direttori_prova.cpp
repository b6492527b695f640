#include "startup/direttori_cond.h"

#include "platform/testo.h"
#include "sostegno/Banco.h"

namespace telva::prove {

struct Dir : Banco {
    // "@" stands for the installation root.
    std::string R(std::string testo) const {
        for (std::size_t p = 0; (p = testo.find('@', p)) != std::string::npos; p += Radice().size()) testo.replace(p, 1, Radice());
        return testo;
    }
    bool Risolvi(const std::string &argomento) {
        ArgomentoAvvio = R(argomento);
        messaggi.clear();
        return Esegui([] { Direttori(); LavoroDaArgomento(); });
    }
    void Rifiuta(const std::string &argomento, const Messaggio &atteso) {
        EXPECT_FALSE(Risolvi(argomento)) << argomento;
        EXPECT_EQ(codiceFine, 0);
        ASSERT_EQ(messaggi.size(), 1u);
        EXPECT_EQ(messaggi[0], atteso);
    }
};

TEST_F(Dir, SiRisolvonoDaArgomentoEImpostazioni) {
    struct {
        const char *argomento, *dirlav, *lavoro, *codice = "ab12cd";
    } casi[] = {{"|diroot=@|", "@\\lavori\r\n", "ab12cd \r\n"}, {"prima |DiRoot=   @ |dopo|", "@\\lavori\\\r\n", "  ab12cd\naltro\n"},
                {"|diroot=@\\|", "\"@\\LAVORI\" , x", "ab12cd"}, {"|diroot=@|", " @\\lavori ,x", "citt\xE0" "5", "città5"}};
    for (const auto &c : casi) {
        Scrivi("impostazioni/dirlav", R(c.dirlav));
        Scrivi("impostazioni/lavoro", c.lavoro);
        EXPECT_TRUE(Risolvi(c.argomento)) << c.argomento;
        EXPECT_EQ(DirRoot + "|" + DirLavoro + "|" + NomeLavoro, R("@|@\\lavori\\") + c.codice + "|" + c.codice) << c.dirlav;
    }
    EXPECT_TRUE(Risolvi(Maiuscole(R("|diroot=@|"))));
    EXPECT_EQ(DirProgra + DirDriver + DirCustom, R("@\\progra@\\driver@\\custom"));
}

TEST_F(Dir, UnArgomentoOUnFileErratoFermaIlProgramma) {
    Installa();
    for (const char *argomento : {"", "  ", "@", "|LAVORO=ab12cd|", "diroot=@|", "|diroot=@"})
        Rifiuta(argomento, {"Avvio del programma: argomento non presente", Icona::Critica, "ERRORE"});
    for (const char *radice : {"", "ab", "@\\manca"})
        Rifiuta(std::string("|diroot=") + radice + "|", {R(std::string("Errore: file ") + radice + "\\impostazioni\\dirlav errato o mancante"), Icona::Esclamazione, "ERRORE"});
    for (const char *dirlav : {"", "\r\nc:\\x\\lavori", "\\lavori\\", "lavoro", ",c:\\x\\lavori"}) {
        Scrivi("impostazioni/dirlav", dirlav);
        Rifiuta("|diroot=@|", {R("Errore: file @\\impostazioni\\dirlav errato o mancante"), Icona::Esclamazione, "ERRORE"});
    }
    for (const char *dirlav : {"c:\\x\\lavoro\\", "c:\\x\\lavori2", "c:\\lavori\\\\"}) {
        Scrivi("impostazioni/dirlav", dirlav);
        Rifiuta("|diroot=@|", {"Errore: il direttorio dei lavori deve terminare con < \\lavori >", Icona::Esclamazione, "ERRORE"});
    }
    Installa();
    for (const char *lavoro : {"", "ab12c", "ab12cde", "\nab12cd", "..\\..\\", "a/b/cd", "ab:cde", "ab..cd", nullptr}) {
        if (lavoro) Scrivi("impostazioni/lavoro", lavoro);
        else Cancella("impostazioni/lavoro");
        Rifiuta("|diroot=@\\|", {R("Errore: file @\\impostazioni\\lavoro errato o mancante"), Icona::Esclamazione, "ERRORE"});
    }
}

TEST_F(Dir, IlLavoroDellArgomentoVincePerSeiCaratteri) {
    Installa();
    const std::pair<const char *, const char *> casi[] = {{"|LAVORO=xy34zw|", "xy34zw"}, {"|lavoro=  Xy34zW", "Xy34zW"}, {"|Lavoro=xy34zwaltro|LAVORO=un", "xy34zw"},
        {"|LAVORO=abc", "abc"}, {"|LAVORO=ÀCITTÀ|", "ÀCITTÀ"}, {"LAVORO=xy34zw", "prova1"}, {"|LAVORO=..\\..\\", nullptr}, {"|LAVORO=c:\\abc", nullptr}, {"|LAVORO=a|\\..\\", nullptr}};
    for (const auto &[coda, codice] : casi) {
        EXPECT_EQ(Risolvi(std::string("|diroot=@|") + coda), codice != nullptr) << coda;
        if (codice) EXPECT_EQ(NomeLavoro + "|" + DirLavoro, codice + R("|@\\lavori\\") + codice) << coda;
        else EXPECT_EQ(messaggi.size(), 1u) << coda;
    }
}

} // namespace telva::prove
