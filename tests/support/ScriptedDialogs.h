#pragma once

#include "platform/Dialogs.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <variant>

namespace zvonika::testing {

/// Answers boxes from a queue of question → answer; fails on an unexpected question and, when it goes, on
/// answers that nobody asked for.
class ScriptedDialogs : public Dialogs {
public:
    ~ScriptedDialogs() override {
        for (const auto& step : script_)
            ADD_FAILURE() << "left-over answer for: " << step.title.toStdString();
    }

    /// Expects a box with exactly this title; `textPart` must occur in its text.
    ScriptedDialogs& expect(const QString& title, const QString& textPart, Answer answer = Answer::Ok) {
        script_.push_back({Kind::Message, title, textPart, answer, {}});
        return *this;
    }
    ScriptedDialogs& expectInput(const QString& title, const QString& typed) {
        script_.push_back({Kind::Input, title, {}, Answer::Ok, typed});
        return *this;
    }
    /// `chosen`: the file, or nothing for Cancel.
    ScriptedDialogs& expectFile(const QString& title, const std::optional<QString>& chosen) {
        script_.push_back({Kind::File, title, {}, Answer::Ok, chosen});
        return *this;
    }

    Answer message(const Message& message) override {
        last = message;
        ++count;
        whileUp();
        const Step step = next(Kind::Message, message.title + QStringLiteral(": ") + message.text);
        EXPECT_EQ(message.title.toStdString(), step.title.toStdString());
        EXPECT_TRUE(message.text.contains(step.textPart)) << message.text.toStdString();
        return step.answer;
    }
    QString input(const QString& title, const QString& prompt) override {
        lastPrompt = prompt;
        const Step step = next(Kind::Input, title);
        EXPECT_EQ(title.toStdString(), step.title.toStdString());
        return step.text.value_or(QString());
    }
    std::optional<QString> openFile(const QString& title, const QString& filter,
                                    const QString& folder) override {
        lastFilter = filter;
        lastFolder = folder;
        const Step step = next(Kind::File, title);
        EXPECT_EQ(title.toStdString(), step.title.toStdString());
        return step.text;
    }
    std::optional<QString> saveFile(const QString& title, const QString& filter,
                                    const QString& suggested) override {
        lastFilter = filter;
        lastFolder = suggested;
        return next(Kind::File, title).text;
    }

    std::function<void()> whileUp = [] {}; ///< called while a box is up
    bool done() const { return script_.empty(); }

    Message last;  ///< the box shown last, whole
    int count = 0; ///< boxes shown so far
    QString lastPrompt, lastFilter, lastFolder;

private:
    enum class Kind { Message, Input, File };
    struct Step {
        Kind kind = Kind::Message;
        QString title, textPart;
        Answer answer = Answer::Cancel;
        std::optional<QString> text;
    };

    Step next(Kind kind, const QString& asked) {
        if (script_.empty() || script_.front().kind != kind) {
            ADD_FAILURE() << "unexpected question: " << asked.toStdString();
            return {};
        }
        Step step = script_.front();
        script_.pop_front();
        return step;
    }

    std::deque<Step> script_;
};

} // namespace zvonika::testing
