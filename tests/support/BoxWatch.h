#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>

namespace zvonika::testing {

/// Ends the modal boxes that nobody answers, so that a box which a case does not expect fails it and does not
/// hang the program. One stands in main(), behind the application object.
class BoxWatch {
public:
    /// `patience`: how long a box may wait for the test, which as a rule acts as soon as it is shown.
    explicit BoxWatch(std::chrono::milliseconds patience = std::chrono::seconds(8)) : patience_(patience) {
        timer_.callOnTimeout([this] { look(); });
        timer_.start(std::min(patience, std::chrono::milliseconds(200)));
    }

private:
    void look() {
        QWidget* box = QApplication::activeModalWidget();
        if (box != watched_) {
            watched_ = box;
            shown_.start();
        } else if (box && shown_.elapsed() > patience_.count()) {
            ADD_FAILURE() << "nobody answers the box " << describe(*box).toStdString();
            end(*box);
        }
    }

    static QString describe(const QWidget& box) {
        QString words = QStringLiteral("\"%1\" (%2)").arg(box.windowTitle(), box.objectName());
        if (const auto* message = qobject_cast<const QMessageBox*>(&box)) words += u' ' + message->text();
        return words;
    }

    void end(QWidget& box) {
        const QPointer<QWidget> ended(&box);
        watched_ = nullptr;
        box.close();
        if (ended && ended->isVisible()) ended->hide(); // one that refuses
    }

    std::chrono::milliseconds patience_;
    QTimer timer_;
    QPointer<QWidget> watched_;
    QElapsedTimer shown_;
};

} // namespace zvonika::testing
