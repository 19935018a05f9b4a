#include "spreadsheet/embedded/ui/SheetMenu.h"

#include "platform/ShownText.h"
#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/SheetCommands.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zvonika {

namespace {

QString withLabel(const QString& text, const QString& label) {
    return label.isEmpty() ? text : text + QStringLiteral(": ") + label;
}

const QString undoText = QStringLiteral("&Zpět");
const QString redoText = QStringLiteral("Zno&vu");

} // namespace

SheetMenu::SheetMenu(SheetCommands& commands, QWidget* sheet, QWidget* parent)
    : QMenuBar(parent), commands_(commands) {
    setAccessibleName(QStringLiteral("Nabídky tabulky"));
    setNativeMenuBar(false);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    fillFile(addMenu(QStringLiteral("&Soubor")));
    auto* edit = addMenu(QStringLiteral("Úp&ravy"));
    fillEdit(edit);
    sheet->addActions(edit->actions());
    sheet->setContextMenuPolicy(Qt::ActionsContextMenu);
    setDocument(nullptr);
}

void SheetMenu::fillFile(QMenu* menu) {
    add(menu, QStringLiteral("akceUlozit"), QStringLiteral("&Uložit"), {QKeySequence(Qt::CTRL | Qt::Key_S)},
        [this] { commands_.files().save(); });
    add(menu, QStringLiteral("akceUlozitJako"), QStringLiteral("Uložit &jako…"), {},
        [this] { commands_.files().saveAs(); });
    menu->addSeparator();
    workbooks_ = menu->addMenu(QStringLiteral("Otevřené &sešity"));
    connect(menu, &QMenu::aboutToShow, this, &SheetMenu::showWorkbooks);
    add(menu, QStringLiteral("akceZavrit"), QStringLiteral("&Zavřít sešit"),
        {QKeySequence(Qt::CTRL | Qt::Key_W)}, [this] { commands_.files().close(); });
    menu->addSeparator();
    add(menu, QStringLiteral("akceUkoncit"), QStringLiteral("U&končit tabulku"), {}, [this] {
        commands_.files().quit();
    });                       // no key: in the program's window the usual one ends the program
    needDocument_.pop_back(); // quitting needs no workbook
}

void SheetMenu::fillEdit(QMenu* menu) {
    const auto clipboard = [] { return QGuiApplication::clipboard(); };
    undo_ = add(menu, QStringLiteral("akceZpet"), undoText, {QKeySequence(Qt::CTRL | Qt::Key_Z)},
                [this] { commands_.undo(); });
    redo_ = add(menu, QStringLiteral("akceZnovu"), redoText,
                {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
                [this] { commands_.redo(); });
    menu->addSeparator();
    add(menu, QStringLiteral("akceVyjmout"), QStringLiteral("Vyj&mout"), {QKeySequence(Qt::CTRL | Qt::Key_X)},
        [this, clipboard] { clipboard()->setText(commands_.cut()); });
    add(menu, QStringLiteral("akceKopirovat"), QStringLiteral("&Kopírovat"),
        {QKeySequence(Qt::CTRL | Qt::Key_C)}, [this, clipboard] { clipboard()->setText(commands_.copy()); });
    add(menu, QStringLiteral("akceVlozit"), QStringLiteral("V&ložit"), {QKeySequence(Qt::CTRL | Qt::Key_V)},
        [this, clipboard] { commands_.paste(clipboard()->text()); });
    add(menu, QStringLiteral("akceSmazat"), QStringLiteral("&Smazat obsah"), {QKeySequence(Qt::Key_Delete)},
        [this] { commands_.clear(); });
    menu->addSeparator();
    add(menu, QStringLiteral("akceVlozitRadek"), QStringLiteral("Vložit řá&dek"),
        {QKeySequence(Qt::CTRL | Qt::Key_Plus)}, [this] { commands_.insertRow(); });
    add(menu, QStringLiteral("akceOdstranitRadek"), QStringLiteral("&Odstranit řádek"),
        {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { commands_.deleteRow(); });
}

QAction* SheetMenu::add(QMenu* menu, const QString& name, const QString& text,
                        const QList<QKeySequence>& keys, std::function<void()> action) {
    QAction* entry = menu->addAction(text);
    entry->setObjectName(name);
    entry->setShortcuts(keys);
    connect(entry, &QAction::triggered, this, &SheetMenu::aboutToAct);
    connect(entry, &QAction::triggered, this, std::move(action));
    needDocument_.push_back(entry);
    return entry;
}

void SheetMenu::setDocument(Document* document) {
    if (document_) document_->disconnect(this);
    document_ = document;
    for (QAction* entry : needDocument_)
        entry->setEnabled(document != nullptr);
    if (!document) return;
    connect(document, &Document::historyChanged, this, &SheetMenu::showHistory);
    showHistory();
}

void SheetMenu::showHistory() {
    const QString undo = commands_.undoLabel(), redo = commands_.redoLabel();
    undo_->setText(withLabel(undoText, undo));
    undo_->setEnabled(!undo.isEmpty());
    redo_->setText(withLabel(redoText, redo));
    redo_->setEnabled(!redo.isEmpty());
}

void SheetMenu::showWorkbooks() {
    workbooks_->clear();
    const QStringList names = commands_.documentNames();
    for (const auto& name : names) {
        QAction* entry =
            workbooks_->addAction(shownName(name).replace(QLatin1Char('&'), QStringLiteral("&&")));
        entry->setCheckable(true);
        entry->setChecked(document_ && document_->file().name() == name);
        connect(entry, &QAction::triggered, this, &SheetMenu::aboutToAct);
        connect(entry, &QAction::triggered, this, [this, name] { commands_.showDocument(name); });
    }
    workbooks_->menuAction()->setVisible(names.size() > 1);
}

} // namespace zvonika
