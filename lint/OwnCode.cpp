// clang-tidy's matchers walk through the standard library and Qt anew in every file, for findings
// that it then leaves out. Once this check has seen the translation unit, the others see our part
// of it.

#include <clang-tidy/ClangTidyCheck.h>
#include <clang-tidy/ClangTidyModule.h>
#include <clang-tidy/ClangTidyModuleRegistry.h>
#include <vector>

namespace {

using namespace clang;

class OwnCode : public tidy::ClangTidyCheck {
public:
    using ClangTidyCheck::ClangTidyCheck;

    void registerMatchers(ast_matchers::MatchFinder* finder) override {
        finder->addMatcher(ast_matchers::translationUnitDecl().bind("all"), this);
    }

    void check(const ast_matchers::MatchFinder::MatchResult& result) override {
        sources_ = result.SourceManager;
        own_.clear();
        needsAll_ = false;
        const auto& all = *result.Nodes.getNodeAs<TranslationUnitDecl>("all");
        for (Decl* declaration : all.noload_decls()) { // nothing precompiled is ours
            if (isOwn(*declaration)) {
                own_.push_back(declaration);
                collectFrom(*declaration);
            }
        }
        if (!needsAll_) {
            result.Context->setTraversalScope(own_);
        }
    }

private:
    bool isOwn(const Decl& declaration) const {
        const SourceLocation place = declaration.getLocation();
        return place.isValid() && !sources_->isInSystemHeader(place);
    }

    void collectFrom(Decl& declaration) {
        if (isa<NamespaceDecl, LinkageSpecDecl, ExportDecl>(declaration)) {
            for (Decl* inner : cast<DeclContext>(declaration).decls()) {
                collectFrom(*inner);
            }
        } else if (const auto* partial =
                       dyn_cast<ClassTemplatePartialSpecializationDecl>(&declaration)) {
            // What comes of ours hangs from the template that it specializes, which may be one of
            // theirs.
            for (Decl* instance : partial->getSpecializedTemplate()->specializations()) {
                if (isOwn(*instance) && instance->getLocation() == partial->getLocation()) {
                    own_.push_back(instance);
                }
            }
        } else if (const auto* record = dyn_cast<CXXRecordDecl>(&declaration)) {
            // Only in theirs can be found what this was meant to declare.
            needsAll_ |= !record->hasDefinition() && !record->isReferenced();
        }
    }

    const SourceManager* sources_ = nullptr;
    std::vector<Decl*> own_;
    bool needsAll_ = false;
};

class OwnCodeModule : public tidy::ClangTidyModule {
    void addCheckFactories(tidy::ClangTidyCheckFactories& factories) override {
        factories.registerCheck<OwnCode>("quillon-own-code");
    }
};

const tidy::ClangTidyModuleRegistry::Add<OwnCodeModule> added("quillon", "");

} // namespace
