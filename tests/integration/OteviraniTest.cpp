// Opening what is no song: one box that says why, and everything as it was before.
#include "platform/files/FileLock.h"
#include "tests/integration/CelyProgram.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

#include <QDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace zvonika::testing {

namespace {

/// Another process that has a file open until it is killed.
class CiziProces {
public:
    explicit CiziProces(const QString& soubor) {
        int hlaseni[2];
        if (::pipe(hlaseni) != 0) return;
        pid_ = ::fork();
        if (pid_ == 0) drz(soubor, hlaseni[1]);
        char znak = 0;
        drzi = ::read(hlaseni[0], &znak, 1) == 1;
        ::close(hlaseni[0]);
        ::close(hlaseni[1]);
    }
    ~CiziProces() {
        if (pid_ <= 0) return;
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
    }
    CiziProces(const CiziProces&) = delete;
    CiziProces& operator=(const CiziProces&) = delete;

    bool drzi = false;

private:
    [[noreturn]] static void drz(const QString& soubor, int hlaseni) {
        const FileLock zamek = FileLock::acquire(soubor);
        if (zamek.isHeld() && ::write(hlaseni, "1", 1) == 1)
            for (;;)
                ::pause();
        ::_exit(1);
    }

    pid_t pid_ = 0;
};

QByteArray zBajtu(const xls::Bytes& obsah) {
    return {reinterpret_cast<const char*>(obsah.data()), static_cast<qsizetype>(obsah.size())};
}

QByteArray zaheslovany() {
    auto zaznamy = xlstest::recordsOf(xls::Workbook::create(u"List").save());
    constexpr std::uint16_t filePass = 0x002F;
    zaznamy.insert(zaznamy.begin() + 1,
                   {filePass, xlstest::operator+(xlstest::le(2, {1, 1, 1}), xls::Bytes(48, 0x5A))});
    return zBajtu(xlstest::fileAround(xlstest::bytesOf(zaznamy)));
}

class OteviraniTest : public CelyProgram {
protected:
    void SetUp() override {
        CelyProgram::SetUp();
        auto kniha = xls::Workbook::create(u"Tonavox XII");
        for (int radek = 0; radek < 300; ++radek) // long enough to be cut in many places
            kniha.setValue(0, {radek, 1}, QStringLiteral("c1, č. %1").arg(radek).toStdU16String());
        dobra_ = bajty(kniha);
    }

    /// Tries to open the file: one box with the number and, as its last line, the sentence.
    void ocekavejOdmitnuti(const QString& soubor, const QString& duvod) {
        const int predtim = dialogs.count;
        otevri(soubor, [this] { dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 1004\n"); });
        EXPECT_EQ(dialogs.count, predtim + 1) << soubor.toStdString();
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        const QString veta = dialogs.last.text.section('\n', 1);
        EXPECT_TRUE(veta.startsWith("Soubor „" + QFileInfo(soubor).fileName() + "“ ")) << veta.toStdString();
        EXPECT_TRUE(veta.contains(duvod) && veta.endsWith('.')) << veta.toStdString();
        ocekavejStavBezPisne();
    }
    void ocekavejOdmitnutiObsahu(const QString& jmeno, const QByteArray& obsah, const QString& duvod) {
        SCOPED_TRACE(jmeno.toStdString());
        ulozSoubor(pisen(jmeno), obsah);
        ocekavejOdmitnuti(pisen(jmeno), duvod);
        EXPECT_EQ(obsahSouboru(pisen(jmeno)), obsah);
        EXPECT_EQ(soubory(), QStringList{jmeno}) << "nothing is left beside the file";
        QFile::remove(pisen(jmeno));
    }
    void ocekavejZeSePracujeDal() {
        novaPisen();
        zapisHmat({"lbl(9)"}, true);
        klikni("cmdEndEdit");
        EXPECT_EQ(textBunky(sesit(pisen("Polka.xls")), "B1"), "c1,");
    }

    QByteArray dobra_;
};

} // namespace

TEST_F(OteviraniTest, FilesThatAreNoSongAreNamedAndLeftAlone) {
    const QString jiny = "podle obsahu je to jiný formát než .xls", neni = "není to sešit ve formátu .xls";
    const struct {
        const char* jmeno;
        QByteArray obsah;
        QString duvod;
    } pripady[] = {
        {"prázdný.xls", {}, "je prázdný"},
        {"dopis.xls", "Milá babičko, posílám Ti písničku.", "prostý text (CSV)"},
        {"stránka.xls", "<html><body><table><tr><td>c1,</td></tr></table></body></html>",
         "webová stránka (HTML)"},
        {"nový.xls", QByteArray("PK\x03\x04\x14\0\x06\0", 8) + QByteArray(500, '\x11'), jiny},
        {"noty.xls", "%PDF-1.4\n1 0 obj\n<<>>\nendobj\n", jiny},
        {"obrázek.xls", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), neni},
        {"šum.xls", QByteArray("\x01\0\xA7\xFF", 4).repeated(1024), neni},
        {"tajný.xls", zaheslovany(), "je chráněn heslem"},
    };
    for (const auto& pripad : pripady)
        ocekavejOdmitnutiObsahu(QString::fromUtf8(pripad.jmeno), pripad.obsah, pripad.duvod);
    ocekavejZeSePracujeDal();
}

TEST_F(OteviraniTest, AFileCutAnywhereIsRefused) {
    ASSERT_GT(dobra_.size(), 8192);
    for (const qsizetype delka : {9ll, 100ll, 511ll, 512ll, 513ll, 1024ll, 4000ll, 8000ll, dobra_.size() / 2,
                                  dobra_.size() - 1024, dobra_.size() - 512})
        ocekavejOdmitnutiObsahu(QStringLiteral("useknutý na %1.xls").arg(delka), dobra_.left(delka),
                                "nelze otevřít");
    ocekavejZeSePracujeDal();
}

TEST_F(OteviraniTest, WhatIsNoFileIsRefused) {
    ASSERT_TRUE(QDir(pracovni()).mkdir("složka.xls"));
    ocekavejOdmitnuti(pisen("složka.xls"), "je to složka");
    ocekavejOdmitnuti(pisen("není.xls"), "neexistuje");
    ocekavejOdmitnuti(pracovni() + "/také není/není.xls", "neexistuje");
    ocekavejOdmitnuti(pisen(QString(300, u'x') + ".xls"), "neexistuje");
    EXPECT_EQ(soubory(), QStringList{"složka.xls"});
    ocekavejZeSePracujeDal();
}

TEST_F(OteviraniTest, ASongThatIsOpenInAnotherProcessIsRefusedUntilThatEnds) {
    ulozSoubor(pisen("Valčík.xls"), dobra_);
    {
        const CiziProces jiny(pisen("Valčík.xls"));
        ASSERT_TRUE(jiny.drzi);
        otevri(pisen("Valčík.xls"), [this] {
            dialogs.expect("Tabulka Zvoniky", "má už otevřený někdo jiný", Answer::No)
                .expect("Neočekávaná chyba !", "1004\nSoubor „Valčík.xls“ je už otevřen jinde (");
        });
        ocekavejStavBezPisne();
        EXPECT_EQ(obsahSouboru(pisen("Valčík.xls")), dobra_);
    }
    otevri(pisen("Valčík.xls"));
    EXPECT_EQ(program->okno().windowTitle(), "Valčík.xls");
}

TEST_F(OteviraniTest, OddNamesOpenAndAreNamedAsTheyAre) {
    const char* jmena[] = {
        "a & b.xls", "100% #1 'x' \"y\".xls", "[x].xls",  "..x.xls", " .xls", "<b>tučné.xls", "PÍSEŇ.XLS",
        "x.xlsx",    "Dvořák – „Es“.xls",     "%1 %2.xls"};
    for (const char* utf8 : jmena) {
        const QString jmeno = QString::fromUtf8(utf8);
        SCOPED_TRACE(utf8);
        ulozSoubor(pisen(jmeno), dobra_);
        otevri(pisen(jmeno));
        EXPECT_EQ(program->okno().windowTitle(), jmeno);
        klikni("cmdEndEdit");
        EXPECT_EQ(textBunky(sesit(pisen(jmeno)), "B300"), "c1, č. 299");
        QFile::remove(pisen(jmeno));
        ocekavejOdmitnutiObsahu(jmeno, "Ahoj, toto je dopis.", "nelze otevřít");
    }
}

} // namespace zvonika::testing
