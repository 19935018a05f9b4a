#pragma once

#include "platform/Dialogs.h"
#include "spreadsheet/WorkbookPlaces.h"
#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/Installation.h"
#include "spreadsheet/libreoffice/OfficeProcess.h"
#include "spreadsheet/libreoffice/PatientCalls.h"
#include "spreadsheet/libreoffice/ReadAhead.h"
#include "spreadsheet/libreoffice/UserNotices.h"

#include <QElapsedTimer>
#include <QRect>
#include <QTimer>

#include <optional>
#include <type_traits>

namespace zvonika {

/// What Calc calls itself in the program's boxes.
inline const QString jmenoCalcu = QStringLiteral("LibreOffice Calc");

/// How long Calc may take to answer before the user is asked, by what it is asked for.
struct Patience {
    std::chrono::milliseconds start{30000};
    std::chrono::milliseconds file{30000};
    std::chrono::milliseconds cell{8000};
};

/// What a running Calc needs of its surroundings; all of it outlives the application.
struct LibreOfficeSurroundings {
    Drive& drive;
    Dialogs& dialogs;
    SettingsStore& settings; ///< the application's own, keeps the default folder
    Installation installation;
    QString profiles;               ///< native folder for the profiles of Zvonika's office
    QRect window;                   ///< where workbooks come up, in pixels of the screen; empty: anywhere
    std::function<void()> sign;     ///< called while Calc lets the user wait, about ten times a second
    std::function<void()> signOver; ///< the wait is over
    Patience patience = {};
};

/// LibreOffice Calc as the program drives it: an instance of its own with a profile of its own, which ends
/// with the program at the latest. The active workbook is the one that the program has opened or activated
/// last; other workbooks that the user opens in Calc are only asked about when it quits. A call that takes
/// long keeps the window alive (PatientCalls); on one that takes too long the user is asked whether to wait
/// or to end Calc.
class LibreOfficeApplication : public SpreadsheetApplication {
public:
    /// Starts Calc; AutomationError 429 with the reason when that fails.
    explicit LibreOfficeApplication(const LibreOfficeSurroundings& surroundings);
    ~LibreOfficeApplication() override;

    QString defaultFilePath() const override;
    void setDefaultFilePath(const QString& path) override;
    void setVisible(bool visible) override;
    /// Asks about workbooks with unsaved changes, those too that the user has opened.
    void quit() override;
    void setListener(SpreadsheetListener* listener) override { listener_ = listener; }
    void showToUser() override;

    void addWorkbook() override;
    void openWorkbook(const QString& fullName) override;
    std::optional<QString> getOpenFilename(const QString& filter, const QString& title) override;
    /// An existing file is replaced only when the user agrees.
    void saveActiveWorkbookAs(const SaveAsArguments& arguments) override;
    /// A workbook that was never saved goes into the default folder.
    void saveActiveWorkbook() override;
    void closeActiveWorkbook() override;
    QString activeWorkbookName() const override;
    void activateWindow(const QString& name) override;

    QString activeSheetName() const override;
    void renameActiveSheet(const QString& name) override;
    int activeSheetIndex() const override;
    int sheetCount() const override;
    void selectSheet(int index) override;
    void selectSheet(const QString& name) override;
    void selectNextSheet() override; ///< 91 on the last sheet

    void selectRange(const QString& address) override;
    CellValue value(const QString& address) const override;                 ///< of a range, its first cell
    void setValue(const QString& address, const CellValue& value) override; ///< of a range, all its cells
    CellValue activeCellValue() const override;
    void setActiveCellValue(const CellValue& value) override;
    int activeRow() const override;
    QString activeAddress() const override;
    void moveCursor(int rows, int columns) override;
    void clearContents(const QString& address) override;
    void findAndActivate(const FindArguments& arguments) override;
    void copyRange(const QString& address) override;
    void paste() override;

    CellBlock readBlock(const QString& address) const override;
    void writeBlock(const QString& address, const CellBlock& block) override;

private:
    enum class State { Running, Ended };
    using Milliseconds = std::chrono::milliseconds;

    void start();
    void connectTo(const QString& pipe);
    void carryOut(Milliseconds patience, const std::function<void()>& calls) const;
    void requireRunning() const;
    bool alive() const;
    bool wantsToWait() const;
    void deliverNotices();
    void keepFolder() const;
    void offerUnsaved();
    bool wantsToSave(const OpenWorkbook& workbook);
    bool trySaving(const OpenWorkbook& workbook);
    bool trySavingElsewhere(const OpenWorkbook& workbook);
    void endCalc();
    OpenWorkbook active() const; ///< 91 when there is none
    void saveUnder(const QString& nativePath);
    bool mayReplace(const QString& name);

    /// What Calc shows of the cursor follows a fast program at the pace of a film.
    void select(const CellRange& range);
    void showCursor() const;
    CellPosition cursor() const;
    CellValue cell(CellPosition position) const;
    void noteWrite(CellPosition position, const CellValue& value);

    /// Carries out `calls` on the thread of the engine, once this application is known to run.
    template <typename Calls>
    auto ask(Milliseconds patience, Calls calls) const {
        showCursor();
        seen_.forget();
        sinceShown_.invalidate();
        return askAside(patience, std::move(calls));
    }
    template <typename Calls>
    auto ask(Calls calls) const {
        return ask(surroundings_.patience.cell, std::move(calls));
    }
    /// The same for calls which leave what has been seen of the sheet as it is.
    template <typename Calls>
    auto askAside(Milliseconds patience, Calls calls) const;
    template <typename Calls>
    auto askAside(Calls calls) const {
        return askAside(surroundings_.patience.cell, std::move(calls));
    }

    LibreOfficeSurroundings surroundings_;
    mutable WorkbookPlaces places_;
    mutable QString calcFolder_; ///< native, as Calc was last known to have it
    mutable ReadAhead seen_;
    /// A selection that Calc has not been given yet; void when the user has acted since.
    struct Owed {
        CellRange range;
        unsigned acts;
    };
    mutable std::optional<Owed> owed_;
    mutable QElapsedTimer sinceShown_; ///< invalid: what follows is another matter than moving
    unsigned shownAfter_ = 0;          ///< how many acts of the user
    QTimer untilShown_;
    SpreadsheetListener* listener_ = nullptr;
    CellBlock clipboard_;
    State state_ = State::Running;
    mutable bool felt_ = false; ///< the user has been shown that Calc takes its time
    std::shared_ptr<OfficeProcess> process_;
    std::shared_ptr<UserNotices> notices_;
    std::shared_ptr<CalcEngine> engine_;
    mutable PatientCalls calls_;
};

template <typename Calls>
auto LibreOfficeApplication::askAside(Milliseconds patience, Calls calls) const {
    using Result = std::invoke_result_t<Calls, CalcEngine&>;
    requireRunning();
    // Shared, because a call that never ends stays behind with what it holds.
    if constexpr (std::is_void_v<Result>) {
        carryOut(patience, [engine = engine_, calls]() mutable { calls(*engine); });
        notices_->deliverAgain();
    } else {
        auto result = std::make_shared<std::optional<Result>>();
        carryOut(patience, [engine = engine_, calls, result]() mutable { *result = calls(*engine); });
        notices_->deliverAgain();
        return std::move(**result);
    }
}

} // namespace zvonika
