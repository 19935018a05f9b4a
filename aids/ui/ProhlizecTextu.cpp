#include "aids/ui/ProhlizecTextu.h"

#include "platform/files/RegularFile.h"

#include <QDir>
#include <QImage>
#include <QTextFrame>

#include <algorithm>

namespace zvonika {

namespace {

using Zachazeni = PovoleneAdresy::Zachazeni;

constexpr qint64 nejvetsiSoubor = 32 << 20; // bytes
constexpr int nejsirsiSloupec = 760;        ///< px; longer lines are hard to read
constexpr int nejmensiOkraj = 20;
constexpr int velikostPisma = 16;   ///< px, from which headings take theirs
constexpr double bodyNaPixel = 0.5; ///< pictures hold two pixels a point, to be sharp on fine screens

QString chybovaStranka(const QUrl& adresa) {
    return QStringLiteral("<html><head><title>Stránku nelze zobrazit</title></head><body>"
                          "<h2>Stránku nelze zobrazit</h2><p>Soubor nebyl nalezen nebo ho nelze přečíst:</p>"
                          "<p><b>%1</b></p></body></html>")
        .arg(QDir::toNativeSeparators(adresa.toLocalFile()).toHtmlEscaped());
}

/// Without a picture the document would load the file by itself.
QImage mistoObrazku() {
    QImage obraz(16, 16, QImage::Format_ARGB32_Premultiplied);
    obraz.fill(QColor(0xC8, 0xC4, 0xBC));
    return obraz;
}

QList<QTextCursor> vyskyty(const QTextDocument& dokument, const QString& text) {
    QList<QTextCursor> nalezy;
    for (QTextCursor c = dokument.find(text, 0); !text.isEmpty() && !c.isNull(); c = dokument.find(text, c))
        nalezy << c;
    return nalezy;
}

} // namespace

ProhlizecTextu::ProhlizecTextu(const MistoProhlizece& misto)
    : QTextBrowser(misto.rodic), povolene_(misto.povolene), sledovani_(misto.sledovani) {
    setOpenExternalLinks(false);
    setFrameShape(QFrame::NoFrame);
    QFont pismo = font();
    pismo.setPixelSize(velikostPisma);
    document()->setDefaultFont(pismo);
    connect(this, &QTextBrowser::historyChanged, this, [this] { sledovani_.historieZmenena(); });
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& kam) { sledovani_.prejito(kam); });
}

void ProhlizecTextu::prejdi(const QUrl& adresa) {
    setSource(adresa, QTextDocument::HtmlResource);
}

void ProhlizecTextu::doSetSource(const QUrl& name, QTextDocument::ResourceType) {
    const QUrl cela = source().isEmpty() ? name : source().resolved(name);
    if (cela.isLocalFile() && povolene_.zachazeni(cela) == Zachazeni::Zobrazit) {
        // The kind is given, because an unknown ending would be taken for plain text.
        QTextBrowser::doSetSource(cela, QTextDocument::HtmlResource);
        srovnejSloupec();
        return;
    }
    if (povolene_.zachazeni(cela) == Zachazeni::Odmitnout)
        sledovani_.oznameno(QStringLiteral("Odkaz vede mimo příručku, proto nebyl otevřen."));
    else
        sledovani_.odkazVen(cela, true);
}

void ProhlizecTextu::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    srovnejSloupec();
}

void ProhlizecTextu::srovnejSloupec() {
    const int zbyva = (viewport()->width() - nejsirsiSloupec) / 2;
    const int okraj = std::max(nejmensiOkraj, zbyva);
    // Where the column fits, nothing of the page is wider; frames of tables are counted in too generously.
    setHorizontalScrollBarPolicy(zbyva >= 0 ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    QTextFrame* koren = document()->rootFrame();
    QTextFrameFormat podoba = koren->frameFormat();
    if (int(podoba.leftMargin()) == okraj) return;
    podoba.setMargin(nejmensiOkraj);
    podoba.setPadding(0);
    podoba.setLeftMargin(okraj);
    podoba.setRightMargin(okraj);
    koren->setFrameFormat(podoba);
}

QVariant ProhlizecTextu::loadResource(int type, const QUrl& name) {
    const QUrl cela = source().isEmpty() ? name : source().resolved(name);
    const bool smi = cela.isLocalFile() && povolene_.zachazeni(cela) == Zachazeni::Zobrazit;
    // A refusal is an answer too: with none the document would read whatever the page names.
    if (type == QTextDocument::ImageResource) return smi ? obrazek(cela) : mistoObrazku();
    if (!smi) return QByteArray();
    if (type == QTextDocument::HtmlResource) return stranka(cela);
    return readRegular(cela.toLocalFile(), Links::Follow, nejvetsiSoubor).bytes;
}

QVariant ProhlizecTextu::obrazek(const QUrl& adresa) const {
    QImage obraz = QImage::fromData(readRegular(adresa.toLocalFile(), Links::Follow, nejvetsiSoubor).bytes);
    if (obraz.isNull()) return mistoObrazku();
    obraz.convertTo(QImage::Format_ARGB32_Premultiplied); // in few colours it would be scaled into few again
    // Scaled here, because the document would leave out pixels.
    const qreal jemnost = devicePixelRatioF();
    if (jemnost * bodyNaPixel < 1)
        obraz = obraz.scaledToWidth(qRound(obraz.width() * jemnost * bodyNaPixel), Qt::SmoothTransformation);
    obraz.setDevicePixelRatio(std::min(jemnost, 1 / bodyNaPixel));
    return obraz;
}

QString ProhlizecTextu::stranka(const QUrl& adresa) const {
    const ReadBytes soubor = readRegular(adresa.toLocalFile(), Links::Follow, nejvetsiSoubor);
    return soubor.trouble ? chybovaStranka(adresa) : QString::fromUtf8(soubor.bytes);
}

void ProhlizecTextu::najdi(const QString& text, bool dozadu) {
    const QList<QTextCursor> nalezy = vyskyty(*document(), text);
    ukazNalezy(nalezy);
    if (nalezy.isEmpty()) {
        QTextCursor bezVyberu = textCursor();
        bezVyberu.clearSelection();
        setTextCursor(bezVyberu);
        sledovani_.nalezeno(0, 0);
        return;
    }
    // A text that is still being typed is found again where it was; the same text on from there.
    const bool odzacatku = dozadu || hledany_ != text;
    const int odkud = odzacatku ? textCursor().selectionStart() : textCursor().selectionEnd();
    hledany_ = text;
    const auto dalsi = std::find_if(nalezy.begin(), nalezy.end(), [&](const QTextCursor& nalez) {
        return nalez.selectionStart() >= odkud;
    });
    // Past the last one it goes on with the first one, and the other way round.
    const qsizetype pocet = nalezy.size();
    const qsizetype kolikaty = (dalsi - nalezy.begin() + (dozadu ? pocet - 1 : 0)) % pocet;
    setTextCursor(nalezy[kolikaty]);
    sledovani_.nalezeno(int(kolikaty) + 1, int(pocet));
}

void ProhlizecTextu::ukazNalezy(const QList<QTextCursor>& nalezy) {
    QList<QTextEdit::ExtraSelection> zvyraznene;
    for (const QTextCursor& nalez : nalezy) {
        QTextCharFormat podklad;
        podklad.setBackground(QColor(0xFF, 0xE0, 0x82));
        zvyraznene << QTextEdit::ExtraSelection{nalez, podklad};
    }
    setExtraSelections(zvyraznene);
}

} // namespace zvonika
