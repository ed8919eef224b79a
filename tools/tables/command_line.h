// How a command of the tool is written: what it takes, what of that stands on a command line, and
// its help.
#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

using Texts = std::span<const std::string_view>;

struct Operand {
  std::string_view name;  // "LATITUDE"
  std::string_view about;
};

struct Option {
  std::string_view name;   // "--zone"
  std::string_view value;  // "+HH:MM"; empty for one that takes none
  std::string_view about;
};

struct Syntax {
  std::string_view name;     // of the command
  std::string_view summary;  // what it prints, a line
  std::string_view details;  // its columns and the like, lines that end with "\n"
  std::span<const Operand> operands;
  std::span<const Option> options;
};

// Stands with every command.
inline constexpr Option kHelpOption{"--help", "", "tells this"};

struct CommandLine {
  std::string fault;  // in words; empty if all is well: then the operands are as many as named
  std::vector<std::string_view> operands;
  std::map<std::string_view, std::string_view> options;  // values by names

  bool Has(std::string_view option) const { return options.contains(option); }
  std::string_view ValueOr(std::string_view option, std::string_view otherwise) const;
};

// Reads what follows the name of a command: operands and, anywhere among them, options, "--zone
// +02:00" or "--zone=+02:00". What begins with "-" is an option unless it is a number.
CommandLine ReadCommandLine(const Syntax& syntax, Texts arguments);

// "tarnwick_tables phases [--ics] FROM TO".
std::string UsageOf(const Syntax& syntax);

// All that there is to know of a command, in lines.
std::string HelpOf(const Syntax& syntax);

// Of all of them.
std::string HelpOf(std::span<const Syntax* const> commands);

}  // namespace tarnwick
