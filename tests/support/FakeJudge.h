#pragma once

#include "engine/FileJudge.h"

#include <QStringList>

#include <map>

namespace quillon::testing {

/// An assistant whose answers a test writes down beforehand. What it isn't told is unknown.
class FakeJudge : public FileJudge {
public:
    std::map<QString, Verdict> verdicts; ///< by question
    std::optional<QString> name;
    bool waiting = false;
    QStringList asked;
    int namesAsked = 0;

    Verdict verdict(const std::string&, const QString& question) override {
        asked.append(question);
        const auto found = verdicts.find(question);
        return found == verdicts.end() ? Verdict::unknown : found->second;
    }
    std::optional<QString> smartName(const std::string&) override {
        ++namesAsked;
        return name;
    }
    void fileMoved(const std::string&, const FileStatus&, const std::string&) override {}
    bool isWaiting(const std::string&) override { return waiting; }
};

} // namespace quillon::testing
