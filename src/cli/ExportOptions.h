// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/ExportArguments.h"

#include <string>
#include <utility>

namespace CLI {
class App;
}

namespace orvane::cli {

// The arguments of the verbs that give a document another form. The parser writes into them, so that they
// have to stay where they are once a verb was added.
class ExportOptions {
  public:
    void AddDiagram(CLI::App& verb);
    void AddExport(CLI::App& verb);
    void AddImport(CLI::App& verb);

    // Once, after the command line was parsed.
    std::string TakeDocument();
    DiagramArguments TakeDiagram();
    ExportArguments TakeExport() { return std::move(export_); }

  private:
    void AddDocument(CLI::App& verb, const char* purpose);

    std::string document_;
    DiagramArguments diagram_;
    ExportArguments export_;
};

} // namespace orvane::cli
