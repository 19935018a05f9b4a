#include "platform/IniSettingsStore.h"
#include "platform/UserSettings.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

const QString section = QStringLiteral("Zabrany");

class SettingsFile : public ::testing::Test {
protected:
    void write(const QByteArray& text) const {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(text);
    }
    QByteArray contents() const {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("Tonavox12.ini"));
};

TEST_F(SettingsFile, KeepsTextsBySectionAndKey) {
    const QStringList texts{"1", "Příčná, řada; \"x\" = @ \\ %", "@zvuk", " mezery ", ""};
    for (int i = 0; i < texts.size(); ++i)
        IniSettingsStore(file).save(section, QString::number(i), texts[i]);
    const IniSettingsStore store(file);
    for (int i = 0; i < texts.size(); ++i)
        EXPECT_EQ(store.get(section, QString::number(i)), texts[i]) << i;
    EXPECT_FALSE(store.get(section, "9"));
    EXPECT_FALSE(store.get("Znaceni", "1"));
    EXPECT_EQ(store.getOr(section, "9", "0"), "0");
}

TEST_F(SettingsFile, IsAnIniFileThatAUserCanWrite) {
    IniSettingsStore(file).save(section, "1", "True");
    EXPECT_EQ(contents().replace("\r\n", "\n"), "[Zabrany]\n1=True\n");
    write("[PopisKnof]\nIndex=žluťoučký, kůň\n");
    EXPECT_EQ(IniSettingsStore(file).get("PopisKnof", "Index"), "žluťoučký, kůň");
}

TEST_F(SettingsFile, DamagedCountsAsEmptyAndIsPutAside) {
    const QByteArray rubbish = "[Zabrany]\n1=True\nrubbish without a sign\n\x01\x02";
    write(rubbish);
    IniSettingsStore store(file);
    EXPECT_FALSE(store.get(section, QStringLiteral("1")));

    store.save(section, QStringLiteral("2"), QStringLiteral("True"));
    EXPECT_EQ(store.get(section, QStringLiteral("2")), QStringLiteral("True"));
    EXPECT_EQ(IniSettingsStore(file).get(section, QStringLiteral("2")), QStringLiteral("True"));
    EXPECT_FALSE(IniSettingsStore(file).get(section, QStringLiteral("1")));
    QFile aside(file + QStringLiteral(".bak"));
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), rubbish);
}

TEST_F(SettingsFile, ThatCannotBeWrittenKeepsTheValueForTheRun) {
    write("a plain file where a folder is needed");
    IniSettingsStore store(file + QStringLiteral("/x.ini"));
    store.save(section, QStringLiteral("1"), QStringLiteral("True"));
    EXPECT_EQ(store.get(section, QStringLiteral("1")), QStringLiteral("True"));
}

#ifdef Q_OS_WIN
TEST(UserSettings, AreTextsInTheRegistry) {
    const QString application = QStringLiteral("Zvonika Zkouška");
    const QString place = QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings");
    for (const char* value : {"True", "12", "C:\\Písně", ""}) {
        userSettings(application)->save(QStringLiteral("Zabrany"), QStringLiteral("1"), value);
        EXPECT_EQ(userSettings(application)->get(QStringLiteral("Zabrany"), QStringLiteral("1")), value);
        QSettings registry(place, QSettings::NativeFormat);
        EXPECT_EQ(registry.value(application + QStringLiteral("/Zabrany/1")).typeId(), QMetaType::QString);
    }
    EXPECT_FALSE(userSettings(application)->get(QStringLiteral("Zabrany"), QStringLiteral("2")));
    QSettings(place, QSettings::NativeFormat).remove(application);
}
#else
TEST_F(SettingsFile, LiesInTheUsersConfigurationFolder) {
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    userSettings(QStringLiteral("Tonavox12"))->save(section, QStringLiteral("1"), QStringLiteral("True"));
    before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
    EXPECT_TRUE(contents().contains("1=True"));
}

TEST(UserStateFolder, IsWhereTheDesktopSaysOrInTheHomeFolder) {
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    const QString byDefault = QDir::homePath() + QStringLiteral("/.local/state/Tabulka");
    const std::pair<const char*, QString> cases[] = {
        {"/stav", QStringLiteral("/stav/Tabulka")}, {"není/celá", byDefault}, {"", byDefault}};
    for (const auto& [value, folder] : cases) {
        qputenv("XDG_STATE_HOME", value);
        EXPECT_EQ(userStateFolder(QStringLiteral("Tabulka")), folder);
    }
    before.isNull() ? qunsetenv("XDG_STATE_HOME") : qputenv("XDG_STATE_HOME", before);
}
#endif

} // namespace
} // namespace zvonika
