// One song after the other whose texts and names were written to be obeyed: each is shown, and nothing else.
#include "platform/ShownText.h"
#include "platform/files/FileNames.h"
#include "tests/integration/CelyProgram.h"
#include "tests/support/System.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QTabBar>
#include <QToolTip>

namespace zvonika::testing {

namespace {

struct Text {
    const char* co;
    QString text; ///< of cells; as far as they may be in it, of the sheet and of the file
};

QString znaky(std::initializer_list<char16_t> kody) {
    QString text;
    for (const char16_t kod : kody)
        text += QChar(kod);
    return text;
}

const Text texty[] = {
    {"a picture of zeros", "<img src=\"/dev/zero\">"},
    {"a picture by its address", "<img src=\"file:///dev/zero\" width=9000 height=9000>"},
    {"a picture of the web", "<img src='https://example.org/x.png'>a"},
    {"a pipe", "<img src='@'>"},
    {"a link", "<a href='https://example.org'>leze</a>"},
    {"a picture behind", "<table background='@'><tr><td>a</td></tr></table>"},
    {"a style sheet", "<link rel=stylesheet href='@'><p>a</p>"},
    {"a style", "<style>*{font-size:900px}</style><b>a</b>"},
    {"markdown", "**a** ![a](@) [b](https://example.org)"},
    {"a document", "<!DOCTYPE html><html><body onload='a()'><h1>a</h1></body></html>"},
    {"a comment left open", "<p>a<!--"},
    {"entities", "&lt;img src=x&gt;&#60;b&#62;"},
    {"an ampersand", "&Soubor && a&b"},
    {"a placeholder", "%1 %2 %L1 %n [*]"},
    {"line breaks", "první\ndruhý\r\ntřetí"},
    {"a hundred line breaks", QStringLiteral("\na").repeated(100)},
    {"control signs", znaky({0x1B}) + "[31ma" + znaky({0x07, 0x08, 0x7F, 0x85})},
    {"letters turned round", "a" + znaky({0x202E}) + "slx.exe"},
    {"isolated directions", znaky({0x2066, 0x2067, 0x200F, 0x061C}) + "a"},
    {"line separators", "a" + znaky({0x2028}) + "b" + znaky({0x2029}) + "c"},
    {"half a character", "a" + znaky({0xD83D}) + "b"},
    {"marks upon marks", "e" + QString(400, QChar(0x0301))},
    {"a word of 32,000 letters", QString(32000, u'W')},
    {"32,000 letters in words", QStringLiteral("slovo ").repeated(5300)},
    {"a formula", "=HYPERLINK(\"file:///etc/passwd\")"},
    {"a path", "../../../etc/passwd"},
};

/// As a sheet's name it may be 31 characters long and lack some.
QString jmenoListu(QString text) {
    for (const char znak : {':', '\\', '/', '?', '*', '[', ']', '\''})
        text.replace(QLatin1Char(znak), u'_');
    return text.left(31).trimmed();
}

/// On the disk.
QString jmenoSouboru(QString text) {
    for (int i = 0; i < text.size(); ++i)
        if (text[i] == u'/' || !forbiddenName(text[i]).isEmpty() || (!Watch::counts && text[i].isSurrogate()))
            text[i] = u'_'; // half a character is no name where names are no bytes
    return text.left(60).toUtf8().left(180) + ".xls";
}

class CiziTextyTest : public CelyProgram, public ::testing::WithParamInterface<Text> {
protected:
    void SetUp() override {
        CelyProgram::SetUp();
        const QString roura = slozka.filePath("roura");
        ASSERT_EQ(makePipe(roura), Watch::counts);
        text = QString(GetParam().text).replace(u'@', roura);
        list = jmenoListu(text);
        soubor = jmenoSouboru(text);
    }
    QByteArray obsah() const {
        constexpr int A = 0, B = 1, C = 2, I = 8, M = 12, V = 21, W = 22;
        auto kniha = xls::Workbook::create(list.toStdU16String());
        for (int radek = 0; radek < 3; ++radek) {
            for (const int sloupec : {A, C, M, W})
                kniha.setValue(0, {radek, sloupec}, text.left(32767).toStdU16String());
            kniha.setValue(0, {radek, B}, std::u16string(u"c1,"));
            kniha.setValue(0, {radek, I}, std::u16string(u"Tah"));
            kniha.setValue(0, {radek, V}, ("l9;" + text.left(100) + "\\").toStdU16String());
        }
        return bajty(kniha);
    }
    /// Of a name nothing is obeyed.
    static void jeUkazane(const QString& nazev, const QString& kde) {
        EXPECT_EQ(shownName(nazev, 100'000), nazev) << kde.toStdString();
    }
    static void projdiPopisek(const QLabel& popisek) {
        const bool prosty = popisek.textFormat() == Qt::PlainText || !Qt::mightBeRichText(popisek.text());
        EXPECT_TRUE(prosty) << popisek.objectName().toStdString() << ": "
                            << popisek.text().left(80).toStdString();
    }
    static void projdiNapovedu(QWidget& prvek) {
        if (prvek.toolTip().isEmpty()) return;
        QHelpEvent dotaz(QEvent::ToolTip, {1, 1}, prvek.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&prvek, &dotaz);
        for (QWidget* okno : QApplication::topLevelWidgets()) {
            const auto* napoveda = qobject_cast<QLabel*>(okno);
            if (!napoveda || !okno->inherits("QTipLabel") || !okno->isVisible()) continue;
            const bool prosta = !Qt::mightBeRichText(napoveda->text()) || napoveda->text().count(u'<') == 2;
            EXPECT_TRUE(prosta) << napoveda->text().left(200).toStdString();
            EXPECT_TRUE(okno->width() < 1400 && okno->height() < 400)
                << okno->width() << 'x' << okno->height();
        }
        QToolTip::hideText();
    }
    void projdi(QWidget& prvek) const {
        const QString jmeno = prvek.objectName();
        if (prvek.isWindow()) jeUkazane(prvek.windowTitle(), "title of " + jmeno);
        const auto* popisek = qobject_cast<QLabel*>(&prvek);
        if (popisek && !prvek.inherits("QTipLabel")) projdiPopisek(*popisek);
        if (const auto* vyber = qobject_cast<QComboBox*>(&prvek))
            for (int i = 0; i < vyber->count(); ++i)
                jeUkazane(vyber->itemText(i), jmeno);
        if (const auto* karty = qobject_cast<QTabBar*>(&prvek))
            for (int i = 0; i < karty->count(); ++i)
                jeUkazane(karty->tabText(i), jmeno);
        if (const auto* tlacitko = qobject_cast<QAbstractButton*>(&prvek)) jeUkazane(tlacitko->text(), jmeno);
        for (const QAction* akce : prvek.actions())
            jeUkazane(akce->text(), jmeno);
        if (prvek.window() == &program->okno() && (jmeno == "lblLadeni" || jmeno == "lblStav"))
            jeUkazane(napis(jmeno), jmeno);
        projdiNapovedu(prvek);
        QAccessibleInterface* hlas = QAccessible::queryAccessibleInterface(&prvek);
        EXPECT_FALSE(hlas && hlas->text(QAccessible::Description).contains("<p style"))
            << jmeno.toStdString();
    }
    void projdiVse() const {
        for (QWidget* okno : QApplication::topLevelWidgets()) {
            projdi(*okno);
            for (QWidget* prvek : okno->findChildren<QWidget*>())
                projdi(*prvek);
            if (okno->isVisible()) okno->grab();
        }
    }

    QString text, list, soubor;

private:
    const Watch watch_{};
};

INSTANTIATE_TEST_SUITE_P(All, CiziTextyTest, ::testing::ValuesIn(texty), [](const auto& info) {
    QString jmeno = QString::fromLatin1(info.param.co);
    return jmeno.replace(u' ', u'_').remove(u',').toStdString();
});

} // namespace

TEST_P(CiziTextyTest, IsShownAndNotObeyedAnywhere) {
    ulozSoubor(pisen(soubor), obsah());
    otevri(pisen(soubor));
    EXPECT_EQ(program->modely().pisen.aktualniPisen, soubor) << "known by its real name";
    EXPECT_EQ(bunka("A1"), text.left(32767));
    projdiVse();
    klavesa(Qt::Key_PageDown);
    projdiVse();
}

} // namespace zvonika::testing
