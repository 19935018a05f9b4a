#include "platform/ui/QtDialogs.h"

#include "platform/ShownText.h"
#include "platform/ui/PedalPress.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>
#include <array>

namespace zvonika {

namespace {

constexpr int comfortableWidth = 420; // px; help texts in lines of readable length
constexpr int longText = 48;          // characters; a longer text gets that width
const QString programName = QStringLiteral("Zvonika");

struct ButtonText {
    Answer answer;
    QMessageBox::StandardButton button;
    const char* text;
    const char* accessibleName;
};

constexpr std::array<ButtonText, 4> buttonTexts{{
    {Answer::Ok, QMessageBox::Ok, "OK", "OK"},
    {Answer::Yes, QMessageBox::Yes, "&Ano", "Ano"},
    {Answer::No, QMessageBox::No, "&Ne", "Ne"},
    {Answer::Cancel, QMessageBox::Cancel, "Storno", "Storno"},
}};

const ButtonText& buttonText(Answer answer) {
    for (const auto& entry : buttonTexts)
        if (entry.answer == answer) return entry;
    return buttonTexts.front();
}

QList<Answer> answersOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::OkCancel:
        return {Answer::Ok, Answer::Cancel};
    case Buttons::YesNo:
        return {Answer::Yes, Answer::No};
    case Buttons::YesNoCancel:
        return {Answer::Yes, Answer::No, Answer::Cancel};
    case Buttons::Ok:
        break;
    }
    return {Answer::Ok};
}

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

void addButtons(QMessageBox& box, const Message& message) {
    const QList<Answer> answers = answersOf(message.buttons);
    for (const Answer answer : answers) {
        const ButtonText& entry = buttonText(answer);
        QPushButton* button = box.addButton(entry.button);
        button->setText(QString::fromUtf8(entry.text));
        button->setAccessibleName(QString::fromUtf8(entry.accessibleName));
        if (answer == message.defaultAnswer.value_or(answers.front())) box.setDefaultButton(button);
    }
    // The last one is what the close box answers: Storno, else Ne, else OK.
    box.setEscapeButton(box.button(buttonText(answers.back()).button));
}

// A message box takes its width from its layout, not from a minimum size of its own.
void widen(QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (!grid) return;
    auto* spacer = new QSpacerItem(comfortableWidth, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
    grid->addItem(spacer, grid->rowCount(), 0, 1, grid->columnCount());
}

Answer answerOf(int button) {
    for (const auto& entry : buttonTexts)
        if (entry.button == button) return entry.answer;
    return Answer::Cancel;
}

bool aWindowIsKeptOnTop() {
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    });
}

QString nearestExistingFolder(const QString& folder) {
    QString candidate = QDir::cleanPath(folder);
    while (!candidate.isEmpty() && !QFileInfo(candidate).isDir()) {
        const QString parent = QFileInfo(candidate).path();
        if (parent == candidate || parent == QLatin1String(".")) return QDir::homePath();
        candidate = parent;
    }
    return candidate.isEmpty() ? QDir::homePath() : candidate;
}

// "Excel Files,*.xls" → "Excel Files (*.xls)"
QString qtFilter(const QString& filter) {
    const auto comma = filter.indexOf(QLatin1Char(','));
    if (comma < 0) return filter;
    return filter.left(comma) + QStringLiteral(" (") + filter.mid(comma + 1).trimmed() + QLatin1Char(')');
}

void nameTheParts(QFileDialog& dialog, const QString& accept) {
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Oblast hledání:"));
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Název souboru:"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Typ souborů:"));
    dialog.setLabelText(QFileDialog::Accept, accept);
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Storno"));
    if (auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        name->setAccessibleName(QStringLiteral("Název souboru"));
}

// Songs are told apart by name and date; their type is the same for all.
void arrangeColumns(QFileDialog& dialog) {
    auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!list) return;
    list->setColumnHidden(2, true);
    list->setColumnWidth(0, 330);
    list->setColumnWidth(3, 150);
}

/// A name with a line break takes one line, and one with a sign that turns letters round does not pretend to
/// end in
/// ".xls".
class ShownNames : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale& locale) const override {
        const bool text = value.typeId() == QMetaType::QString; // before a break in it becomes another one
        return shownName(text ? value.toString() : QStyledItemDelegate::displayText(value, locale));
    }
};

/// The box that the user knows from his other programs, where there is one of the system's own; elsewhere the
/// toolkit would take that of whatever desktop runs.
#ifdef Q_OS_WIN
constexpr bool ownBox = false;
#else
constexpr bool ownBox = true;
#endif

/// A choice among files that are there. One is found by its name without the ending, too.
class FileToOpen : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    /// The box itself lets a name be chosen only when it is there to the letter.
    void watchName() {
        if (!nameEdit()) return; // the system's own box, which completes names itself
        connect(nameEdit(), &QLineEdit::textChanged, this, [this] {
            auto* buttons = findChild<QDialogButtonBox*>();
            if (buttons && !completed().isEmpty()) buttons->button(QDialogButtonBox::Open)->setEnabled(true);
        });
    }

protected:
    void accept() override {
        if (const QString name = completed(); !name.isEmpty()) nameEdit()->setText(name);
        QFileDialog::accept();
    }

private:
    QLineEdit* nameEdit() const { return findChild<QLineEdit*>(QStringLiteral("fileNameEdit")); }

    /// The name that was typed, with its ending; "" where it needs none or no such file is there.
    QString completed() const {
        const QString name = nameEdit() ? nameEdit()->text() : QString();
        const QString file = directory().absoluteFilePath(name);
        if (name.isEmpty() || QFileInfo::exists(file)) return {};
        for (const char* ending : {".xls", ".XLS"})
            if (QFileInfo(file + QLatin1String(ending)).isFile()) return name + QLatin1String(ending);
        return {};
    }
};

void setUp(QFileDialog& dialog, const QString& filter, const QString& folder) {
    // Said to the box itself, it has its parts at once.
    const bool own = ownBox || QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
    dialog.setOption(QFileDialog::DontUseNativeDialog, own);
    dialog.setNameFilter(qtFilter(filter));
    dialog.setDirectory(nearestExistingFolder(folder));
    dialog.setViewMode(QFileDialog::Detail);
    dialog.setItemDelegate(new ShownNames(&dialog));
    arrangeColumns(dialog);
    dialog.resize(720, 460);
}

// The box itself gives its suffix only to names without any dot, not to "1. Ach synku".
QString withSuffix(const QString& file, const QString& suffix) {
    const QString ending = QLatin1Char('.') + suffix;
    return file.endsWith(ending, Qt::CaseInsensitive) ? file : file + ending;
}

std::optional<QString> chosenFile(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

Message overwriteQuestion(const QString& title, const QString& file) {
    return {title, QStringLiteral("Soubor „%1“ již existuje. Chcete ho přepsat ?").arg(shownFileName(file)),
            Icon::Exclamation, Buttons::YesNo, Answer::No};
}

} // namespace

QWidget* QtDialogs::parentWindow() const {
    QWidget* active = QApplication::activeModalWidget();
    if (!active) active = QApplication::activeWindow();
    return active ? active : mainWindow_.data();
}

void QtDialogs::prepare(QDialog& dialog, const QString& name, const QString& title) const {
    dialog.setObjectName(name);
    dialog.setWindowTitle(title.isEmpty() ? programName : shownName(title));
    dialog.setAccessibleName(dialog.windowTitle());
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    if (aWindowIsKeptOnTop()) dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

Answer QtDialogs::message(const Message& message) {
    QMessageBox box(parentWindow());
    prepare(box, QStringLiteral("zprava"), message.title);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const QString text = shownText(message.text);
    box.setText(text);
    box.setAccessibleDescription(text);
    box.setIcon(iconOf(message.icon));
    addButtons(box, message);
    if (message.text.size() > longText) widen(box);
    std::optional<PedalPress> pedal;
    if (message.pedal) pedal.emplace([&box] { box.defaultButton()->click(); });
    return answerOf(box.exec());
}

QString QtDialogs::input(const QString& title, const QString& prompt) {
    QInputDialog dialog(parentWindow());
    prepare(dialog, QStringLiteral("vstup"), title);
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setLabelText(shownText(prompt));
    for (auto* label : dialog.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    dialog.setOkButtonText(QStringLiteral("OK"));
    dialog.setCancelButtonText(QStringLiteral("Storno"));
    if (auto* edit = dialog.findChild<QLineEdit*>()) edit->setAccessibleName(prompt);
    dialog.resize(comfortableWidth, dialog.sizeHint().height());
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

std::optional<QString> QtDialogs::openFile(const QString& title, const QString& filter,
                                           const QString& folder) {
    FileToOpen dialog(parentWindow());
    prepare(dialog, QStringLiteral("vyberSouboru"), title);
    setUp(dialog, filter, folder);
    dialog.watchName();
    dialog.setFileMode(QFileDialog::ExistingFile);
    nameTheParts(dialog, QStringLiteral("Otevřít"));
    return chosenFile(dialog);
}

std::optional<QString> QtDialogs::saveFile(const QString& title, const QString& filter,
                                           const QString& suggested) {
    QFileDialog dialog(parentWindow());
    prepare(dialog, QStringLiteral("vyberSouboru"), title);
    setUp(dialog, filter, QFileInfo(suggested).path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDefaultSuffix(QStringLiteral("xls"));
    dialog.selectFile(QFileInfo(suggested).fileName());
    nameTheParts(dialog, QStringLiteral("Uložit"));
    for (;;) {
        const auto chosen = chosenFile(dialog);
        if (!chosen) return {};
        const QString file = withSuffix(*chosen, dialog.defaultSuffix());
        if (!QFileInfo::exists(file)) return file;
        if (message(overwriteQuestion(dialog.windowTitle(), file)) == Answer::Yes) return file;
    }
}

} // namespace zvonika
