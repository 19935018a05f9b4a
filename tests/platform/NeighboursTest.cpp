// What stands where settings, tables and sounds are looked for, and is none.
#include "tests/support/Neighbours.h"

#include "platform/HomeDrive.h"
#include "platform/IniSettingsStore.h"
#include "platform/XmlTable.h"
#include "platform/media/FluidMedia.h"
#include "tests/support/System.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika::testing {

namespace {

class NeighboursTest : public ::testing::TestWithParam<Neighbour> {
protected:
    QString put(const QString& name) const {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(GetParam().put(path));
        return path;
    }
    QTemporaryDir folder;
};

INSTANTIATE_TEST_SUITE_P(All, NeighboursTest, ::testing::ValuesIn(neighbours), [](const auto& info) {
    return QByteArray(info.param.what).replace(' ', '_').replace('\'', "").toStdString();
});

} // namespace

TEST_P(NeighboursTest, AreNoSettingsAndWhatIsSavedHoldsForTheRun) {
    for (const char* name : {"Tonavox12.ini", "Znovu.ini.lock"}) {
        IniSettingsStore store(put(QString::fromLatin1(name)).remove(".lock"));
        EXPECT_FALSE(store.get("Zabrany", "1"));
        store.save("Zabrany", "1", "True");
        EXPECT_EQ(store.get("Zabrany", "1"), "True");
    }
}

TEST_P(NeighboursTest, AreNoTable) {
    pugi::xml_document document;
    const QString why = loadXmlTable(put("tonavox.xml"), "Tabulka", document);
    EXPECT_TRUE(why.startsWith("Tabulka n")) << why.toStdString();
}

TEST_P(NeighboursTest, AreNoSound) {
    put("a.mid");
    HomeDrive drive(folder.path(), {});
    FluidMedia media(drive, {});
    const int code = media.sendString("open C:\\a.mid type sequencer");
    EXPECT_TRUE(code == mediaError::fileNotFound || code == mediaError::invalidFile) << code;
}

TEST(Table, OfAHostileKindIsRefusedOrReadAndNeverEndsTheProgram) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("t.xml");
    const std::pair<QByteArray, bool> tables[] = {
        {QByteArray("<a>").repeated(1'000'000), false},
        {"<!DOCTYPE a [<!ENTITY b SYSTEM 'file:///etc/passwd'>]><a><nota>&b;</nota></a>", true},
        {"<!DOCTYPE a [<!ENTITY b 'x'><!ENTITY c '&b;&b;&b;'>]><a><nota>&c;&c;</nota></a>", true},
        {"<a><nota>" + QByteArray(3 << 20, 'x') + "</nota></a>", true},
        {QByteArray("\0\0<\0a\0>", 8), false},
    };
    for (const auto& [bytes, readable] : tables) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        pugi::xml_document document;
        EXPECT_EQ(loadXmlTable(path, "Tabulka", document).isEmpty(), readable) << bytes.left(60).constData();
        const QString text = QString::fromUtf8(document.select_node("//nota").node().text().get());
        EXPECT_FALSE(text.contains("root:") || text.contains("xx:"));
    }
}

TEST(Settings, AreTheUsersAlone) {
    SKIPPED_ON_WINDOWS("rights are no bits of a mode; the settings are in the registry");
    const QTemporaryDir folder;
    const QString file = folder.filePath("Tonavox12.ini");
    constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    for (int round = 0; round < 2; ++round) {
        IniSettingsStore(file).save("Zabrany", "1", QString::number(round));
        EXPECT_EQ(QFile::permissions(file) & others, QFile::Permissions()) << round;
        EXPECT_EQ(IniSettingsStore(file).get("Zabrany", "1"), QString::number(round));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | others); // as they were before
    }
}

} // namespace zvonika::testing
