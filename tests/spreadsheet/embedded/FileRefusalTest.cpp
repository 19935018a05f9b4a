#include "platform/ShownText.h"
#include "platform/files/FileNames.h"
#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/embedded/WorkbookFile.h"
#include "spreadsheet/journal/ContentHash.h"
#include "tests/spreadsheet/embedded/Rig.h"
#include "tests/spreadsheet/embedded/SmallMemory.h"
#include "tests/support/Neighbours.h"

#include <functional>
#include <stdexcept>

namespace zvonika::testing {

namespace {

class FileRefusalTest : public ::testing::Test, protected World {
protected:
    FileRefusalTest() {
        Document document(QStringLiteral("Sešit1"));
        document.editing().write(1, {1, 2}, {{QStringLiteral("c")}});
        document.saveAs(good);
        saved = contents(good);
    }
    QString saving(Document& document, const QString& target) const {
        return refusalOf([&] { document.saveAs(target); });
    }

    /// That the system takes for this file's; the last one is not there on every system.
    QStringList otherNamesOf(const QString& file) const {
        QStringList names{QFileInfo(file).path() + QStringLiteral("/./") + QFileInfo(file).fileName()};
        if (linkTo(file, path(QStringLiteral("odkaz.xls")))) names << path(QStringLiteral("odkaz.xls"));
        if (QFile::exists(file.toUpper())) names << file.toUpper();
        return names;
    }

    const QString good = path(QStringLiteral("dobrá.xls"));
    QByteArray saved;
};

} // namespace

TEST_F(FileRefusalTest, WhatIsNoRegularFileIsRefusedAtOnce) {
    for (const Neighbour& neighbour : neighbours) {
        const QString sign = forbiddenName(QStringLiteral("\n")).isEmpty() ? QStringLiteral("\n") : QString();
        const QString song = path(QStringLiteral("%1%2.xls").arg(QString::fromLatin1(neighbour.what), sign));
        ASSERT_TRUE(neighbour.put(song)) << neighbour.what;
        const QString refusal = refusalOf([&] { Document::open(song); });
        EXPECT_TRUE(
            refusal.startsWith(QStringLiteral("1004 Soubor „%1“ nelze otevřít: ").arg(shownFileName(song))))
            << refusal.toStdString();
        EXPECT_TRUE(contentHashOfFile(song).isEmpty()) << neighbour.what;
    }
    const QString link = path(QStringLiteral("odkaz.xls"));
    if (linkTo(good, link)) {
        EXPECT_TRUE(Document::open(link)) << "a song may be a link";
    }
}

TEST_F(FileRefusalTest, OpeningSaysWhatIsWrong) {
    const auto make = [&](const char* name, const QByteArray& bytes) {
        store(path(QString::fromUtf8(name)), bytes);
    };
    make("prázdný.xls", {});
    make("dopis.xls", "Milá babičko, posílám Ti písničku.");
    make("nový.xls", QByteArray("PK\x03\x04", 4) + QByteArray(26, '\0') + "[Content_Types].xml");
    QByteArray old = contents(QStringLiteral(XLS_DATA "/biff5.xls"));
    old.replace(QByteArray("\x42\0\2\0\xE2\x04", 6), QByteArray("\x42\0\2\0\xA4\x03", 6));
    make("japonský.xls", old);
    make("useknutý.xls", saved.left(saved.size() / 2));
    make("rozbitý.xls", QByteArray(saved).replace(30, 2, QByteArray(2, '\x55')));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("složka.xls")));
    const std::pair<const char*, const char*> cases[] = {
        {"není.xls", "neexistuje."},
        {"složka.xls", "je to složka."},
        {"prázdný.xls", "je prázdný."},
        {"dopis.xls",
         "podle obsahu je to prostý text (CSV); uložte ho v programu, který ho vytvořil, jako sešit .xls."},
        {"nový.xls", "podle obsahu je to sešit v novějším formátu .xlsx; uložte ho v programu, který ho "
                     "vytvořil, jako sešit .xls."},
        {"japonský.xls", "texty jsou v něm ve znakové sadě, kterou tabulka nezná; uložte ho v programu, "
                         "který ho vytvořil, v dnešním formátu .xls."},
        {"useknutý.xls", "není celý, jeho konec chybí."},
        {"rozbitý.xls", "je poškozený."},
    };
    for (const auto& [name, reason] : cases)
        EXPECT_EQ(refusalOf([&] { Document::open(path(QString::fromUtf8(name))); }),
                  QStringLiteral("1004 Soubor „%1“ nelze otevřít: %2")
                      .arg(QString::fromUtf8(name), QString::fromUtf8(reason)));
    if (const QString device = QStringLiteral("/dev/null"); QFile::exists(device)) {
        EXPECT_EQ(refusalOf([&] { Document::open(device); }),
                  QStringLiteral("1004 Soubor „null“ nelze otevřít: není to obyčejný soubor."));
    }
    EXPECT_TRUE(files().filter(QStringLiteral(".zamek")).isEmpty());
}

TEST_F(FileRefusalTest, AHugeFileOfAnotherKindIsNotRead) {
    const QByteArray container("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
    const std::pair<QByteArray, const char*> cases[] = {
        {QByteArray(), "není to sešit ve formátu .xls."},
        {QByteArray("%PDF-1.7"), "podle obsahu je to jiný formát než .xls."},
        {container, "je poškozený."}};
    for (const auto& [head, reason] : cases) {
        store(good, head);
        ASSERT_TRUE(QFile::resize(good, qint64{500} << 20)); // takes no room on the disk
        const SmallMemory memory(64 << 20);
        EXPECT_EQ(refusalOf([&] { readWorkbook(good); }),
                  QStringLiteral("1004 Soubor „dobrá.xls“ nelze otevřít: %1").arg(QString::fromUtf8(reason)));
    }
}

TEST_F(FileRefusalTest, AFileThatIsOpenInTheSameProcessIsNotOpenedTwice) {
    const auto open = Document::open(good);
    const QString refusal = QStringLiteral("1004 Soubor „%1“ je už otevřen v této tabulce (");
    for (const QString& name : otherNamesOf(good))
        EXPECT_TRUE(
            refusalOf([&] { Document::open(name); }).startsWith(refusal.arg(QFileInfo(name).fileName())))
            << name.toStdString();
    Document other(QStringLiteral("Sešit2"));
    EXPECT_TRUE(saving(other, good).startsWith(refusal.arg(QStringLiteral("dobrá.xls"))));
    EXPECT_EQ(contents(good), saved);
}

TEST_F(FileRefusalTest, SavingSaysWhatIsWrongAndChangesNothing) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("složka.xls")));
    const auto document = Document::open(good);
    document->editing().write(1, {1, 2}, {{QStringLiteral("d")}});
    const QStringList before = files();
    const QString longName = QString(300, u'x') + QStringLiteral(".xls");
    std::vector<std::pair<QString, QString>> cases = {
        {QStringLiteral("není/x.xls"), QStringLiteral("složka „%1“ neexistuje")
                                           .arg(QDir::toNativeSeparators(path(QStringLiteral("není"))))},
        {QStringLiteral("dobrá.xls/x.xls"),
         QStringLiteral("„%1“ není složka").arg(QDir::toNativeSeparators(good))},
        {QStringLiteral("složka.xls"), QStringLiteral("pod tímto jménem je na disku složka")},
        {longName, QStringLiteral("jeho jméno je příliš dlouhé")},
        {QStringLiteral("a%1b.xls").arg(QChar(u'\0')),
         forbiddenName(QString(QChar(u'\0'))).isEmpty()
             ? QStringLiteral("v jeho jménu je znak, který tam být nesmí")
             : forbiddenName(QString(QChar(u'\0')))}};
    if (QFile::exists(QStringLiteral("/dev/full")))
        cases.emplace_back("/dev/full", "pod tímto jménem není obyčejný soubor");
    for (const auto& [name, reason] : cases) {
        const QString target = name.startsWith(QLatin1Char('/')) ? name : path(name);
        const QString expected =
            QStringLiteral("1004 Soubor „%1“ nelze uložit: %2.").arg(shownFileName(target), reason);
        EXPECT_EQ(saving(*document, target), expected);
    }
    EXPECT_EQ(files(), before);
    EXPECT_EQ(document->file().path(), good);
    EXPECT_TRUE(document->file().isModified());
    document->save();
    EXPECT_FALSE(document->file().isModified());
    EXPECT_NE(contents(good), saved);

    ASSERT_TRUE(QFile::remove(good) && QDir().mkdir(good));
    EXPECT_NE(saving(*document, good), QString());
    EXPECT_TRUE(FileLock::holder(good)) << "what could not be saved in its place stays locked";
}

TEST_F(FileRefusalTest, WhateverFailsInASaveIsARefusal) {
    const auto system = [](int number) {
        return [number] { throw std::system_error(number, std::generic_category()); };
    };
    const std::pair<std::function<void()>, const char*> cases[] = {
        {[] { throw std::bad_alloc(); }, "nestačí paměť počítače"},
        {[] { throw std::length_error("x"); }, "obsah sešitu se nepodařilo sestavit"},
        {system(EACCES), "nemáte oprávnění k zápisu"},
        {system(EROFS), "disk je jen pro čtení"},
        {system(ENOSPC), "na disku není dost místa"},
        {system(ETXTBSY), "má ho otevřený jiný program"},
#ifdef EDQUOT
        {system(EDQUOT), "na disku není dost místa"},
#endif
        {system(EIO), "při zápisu na disk nastala chyba 5"},
    };
    for (const auto& [steps, reason] : cases)
        EXPECT_EQ(refusalOf([&] { refusingToSave(good, steps); }),
                  QStringLiteral("1004 Soubor „dobrá.xls“ nelze uložit: %1.").arg(QString::fromUtf8(reason)));
    EXPECT_EQ(
        refusalOf([&] { refusingToSave(good, [] { throw RuntimeError(9, QStringLiteral("Už víme.")); }); }),
        QStringLiteral("9 Už víme."));
}

} // namespace zvonika::testing
