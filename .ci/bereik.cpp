// A plugin of clang-tidy: its checks pass over what the headers of the system declare. Nothing that
// they find there is ever shown, but looking takes six times as long as the sources themselves do.
#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Frontend/FrontendPluginRegistry.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

class Bereik final : public clang::ASTConsumer {
 public:
  void HandleTranslationUnit(clang::ASTContext& context) override {
    auto const alle = context.getTranslationUnitDecl()->decls();
    auto const& bestanden = context.getSourceManager();
    std::vector<clang::Decl*> eigen;
    std::copy_if(alle.begin(), alle.end(), std::back_inserter(eigen), [&](clang::Decl const* decl) {
      return !bestanden.isInSystemHeader(decl->getLocation());
    });
    context.setTraversalScope(eigen);
  }
};

class Invoeging final : public clang::PluginASTAction {
  std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance& /*compiler*/,
                                                        llvm::StringRef /*bestand*/) override {
    return std::make_unique<Bereik>();
  }
  bool ParseArgs(clang::CompilerInstance const& /*compiler*/,
                 std::vector<std::string> const& /*opties*/) override {
    return true;
  }
  // Before the checks look at anything.
  ActionType getActionType() override { return AddBeforeMainAction; }
};

clang::FrontendPluginRegistry::Add<Invoeging> const aanmelding("bereik",
                                                               "Passes system headers over");

}  // namespace
