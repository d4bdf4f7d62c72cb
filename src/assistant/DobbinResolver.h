#pragma once

#include "assistant/DobbinJudge.h"
#include "assistant/FileText.h"
#include "assistant/ModelAccess.h"
#include "platform/Background.h"
#include "store/QuestionResolver.h"

#include <QCoroTask>

#include <atomic>
#include <functional>
#include <memory>

namespace quillon {

/// Asks a model what the rules want to know about files, and tells the judge: at most 24 verdicts
/// and 12 names a time, one request a question and one for the names, all of them under way at
/// once. Files are described in the background. An answer counts only for a file that was asked
/// about; whatever remains without a usable one has failed, and the judge holds it back for a
/// while. On the store's thread.
class DobbinResolver final : public QuestionResolver {
public:
    /// Borrows all; `model` is called when there is something to ask. What is under way in the
    /// background when the resolver goes away uses `files` until the background ends.
    DobbinResolver(DobbinJudge& judge, const FileText& files, Background& background,
                   std::function<ModelAccess&()> model);
    ~DobbinResolver() override;
    DobbinResolver(const DobbinResolver&) = delete;
    DobbinResolver& operator=(const DobbinResolver&) = delete;

    [[nodiscard]] bool hasPending() const override;
    void resolvePending(std::function<void(QuestionsOutcome)> done) override;

private:
    struct Batch;
    struct Pass;

    QCoro::Task<> ask(std::shared_ptr<Pass> pass, std::shared_ptr<const Batch> batch);
    [[nodiscard]] bool record(const Batch& batch, const Expected<QString>& answer,
                              QStringList& problems);

    DobbinJudge& judge_;
    const FileText& files_;
    Background& background_;
    std::function<ModelAccess&()> model_;
    /// Whether the resolver is still there, for those that may outlive it.
    const std::shared_ptr<std::atomic<bool>> isAlive_ = std::make_shared<std::atomic<bool>>(true);
};

} // namespace quillon
