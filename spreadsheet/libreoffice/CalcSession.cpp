#include "spreadsheet/libreoffice/CalcSession.h"

#include "platform/Log.h"
#include "spreadsheet/SpreadsheetApplication.h"
#include "spreadsheet/libreoffice/Plugin.h"

#include <QCoreApplication>
#include <QRandomGenerator>

namespace zvonika {

namespace {

constexpr std::chrono::milliseconds endTakes{8000}; ///< from the request to the end of the process

[[noreturn]] void cannotStart(const QString& reason) {
    throw AutomationError(error::cannotCreateObject, reason);
}

QString freshPipe() {
    return QStringLiteral("zvonika-%1-%2")
        .arg(QCoreApplication::applicationPid())
        .arg(QRandomGenerator::global()->generate64(), 16, 16, QLatin1Char('0'));
}

std::shared_ptr<OfficeProcess> started(const LibreOfficeSurroundings& surroundings, const QString& folder,
                                       const QString& pipe) {
    const Installation& installation = surroundings.installation;
    if (!installation.usable()) cannotStart(installation.missing);
    qCInfo(callsLog) << "LibreOffice" << installation.version << installation.program;
    const Profile profile(surroundings.profiles);
    profile.seed({folder, surroundings.window, installation.version});
    return std::make_shared<OfficeProcess>(installation, profile, pipe);
}

} // namespace

CalcSession::CalcSession(const LibreOfficeSurroundings& surroundings, const QString& folder)
    : surroundings_(surroundings),
      calls_({surroundings.sign, [this] { return wantsToWait(); }, [this] { process_->end(); }},
             surroundings.signOver, surroundings.patience) {
    const QString pipe = freshPipe();
    process_ = started(surroundings_, folder, pipe);
    files_ = std::make_shared<OpenFiles>(process_->profileUrl());
    notices_ = std::make_shared<UserNotices>([this] { return calls_.busy(); },
                                             [process = process_, files = files_](const QString& path) {
                                                 process->tellDocument(path);
                                                 files->learn(path);
                                             },
                                             [files = files_](const QString& path) { files->close(path); });
    connectTo(pipe);
    process_->tellStarted();
}

CalcSession::~CalcSession() {
    notices_->stop();
    end();
}

void CalcSession::connectTo(const QString& pipe) {
    auto engine = connected(pipe);
    if (!engine) cannotStart(QStringLiteral("LibreOffice Calc se po spuštění hned ukončil."));
    calls_.attach(std::move(engine), notices_, [process = process_] { return process->running(); });
}

std::shared_ptr<CalcEngine> CalcSession::connected(const QString& pipe) {
    const ConnectToCalc connect = loadCalcPlugin(surroundings_.installation);
    const CalcAddress address{surroundings_.installation.program, pipe,
                              [process = process_] { return process->running(); }};
    auto engine = std::make_shared<std::shared_ptr<CalcEngine>>();
    try {
        calls_.carryOut(surroundings_.patience.start, [connect, address, engine, notices = notices_] {
            // The engine tells the notices to the last.
            *engine = std::shared_ptr<CalcEngine>(connect(address, *notices),
                                                  [notices](CalcEngine* ended) { delete ended; });
        });
    } catch (const AutomationError& failure) {
        cannotStart(failure.cause());
    }
    return *engine;
}

bool CalcSession::wantsToWait() const {
    const Answer answer = surroundings_.dialogs.message(
        {jmenoCalcu,
         QStringLiteral("LibreOffice Calc neodpovídá.\nChcete na něj ještě počkat?\n\n"
                        "Ne: Calc bude ukončen. Změny písničky, které v něm nejsou uloženy, nabídne program "
                        "po novém spuštění vrátit."),
         Icon::Exclamation, Buttons::YesNo, Answer::Yes});
    return answer == Answer::Yes;
}

void CalcSession::end() {
    if (ended_) return;
    if (quits()) process_->waitForEnd(endTakes);
    ended_ = true;
    process_->end();
    files_->closeAll();
    calls_.detach();
}

bool CalcSession::quits() {
    try {
        return calls_.alive() &&
               calls_.ask(surroundings_.patience.file, [](CalcEngine& calc) { return calc.quit(); });
    } catch (const std::exception&) { // it has gone in between
        return false;
    }
}

} // namespace zvonika
