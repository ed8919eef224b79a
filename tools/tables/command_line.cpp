#include "tools/tables/command_line.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr std::size_t kNamesWidth = 27;  // of the column of names in helps

bool IsOption(std::string_view argument) {
  return argument.size() > 1 && argument.front() == '-' &&
         std::string_view("0123456789.").find(argument[1]) == std::string_view::npos;
}

std::string OptionText(const Option& option) {
  return std::string(option.name) + (option.value.empty() ? "" : " ") + std::string(option.value);
}

std::string OperandsText(const Syntax& syntax) {
  std::string text;
  for (const Operand& operand : syntax.operands) {
    text += (text.empty() ? "" : " ") + std::string(operand.name);
  }
  return text;
}

std::string Quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

// Takes up the option at the front; returns how many of the arguments belong to it.
std::size_t ReadOption(const Syntax& syntax, Texts arguments, CommandLine& line) {
  const std::string_view name = arguments[0].substr(0, arguments[0].find('='));
  const auto option = std::ranges::find(syntax.options, name, &Option::name);
  if (option == syntax.options.end()) {
    line.fault = std::string(syntax.name) + " has no option " + Quoted(name);
    return 1;
  }
  const bool joined = name.size() < arguments[0].size();
  if (option->value.empty()) {
    if (joined) line.fault = std::string(name) + " takes no value";
    line.options[option->name] = {};
    return 1;
  }
  if (!joined && arguments.size() < 2) {
    line.fault = std::string(name) + " needs " + std::string(option->value) + " behind it";
    return 1;
  }
  line.options[option->name] = joined ? arguments[0].substr(name.size() + 1) : arguments[1];
  return joined ? 1 : 2;
}

std::string OperandsFault(const Syntax& syntax, Texts operands) {
  const std::size_t wanted = syntax.operands.size();
  if (operands.size() == wanted) return "";
  if (operands.size() > wanted) return "surplus argument " + Quoted(operands[wanted]);
  return std::string(syntax.operands[operands.size()].name) + " is missing";
}

std::string HelpLine(std::string_view name, std::string_view about) {
  std::string line = "  " + std::string(name);
  line.resize(std::max(line.size() + 2, kNamesWidth), ' ');
  return line.append(about) + '\n';
}

}  // namespace

std::string_view CommandLine::ValueOr(std::string_view option, std::string_view otherwise) const {
  const auto found = options.find(option);
  return found == options.end() ? otherwise : found->second;
}

CommandLine ReadCommandLine(const Syntax& syntax, Texts arguments) {
  CommandLine line;
  if (std::ranges::find(arguments, kHelpOption.name) != arguments.end()) {
    line.options[kHelpOption.name] = {};
    return line;
  }
  while (!arguments.empty() && line.fault.empty()) {
    std::size_t taken = 1;
    if (IsOption(arguments[0])) {
      taken = ReadOption(syntax, arguments, line);
    } else {
      line.operands.push_back(arguments[0]);
    }
    arguments = arguments.subspan(taken);
  }
  if (line.fault.empty()) line.fault = OperandsFault(syntax, line.operands);
  return line;
}

std::string UsageOf(const Syntax& syntax) {
  std::string usage = "tarnwick_tables " + std::string(syntax.name);
  for (const Option& option : syntax.options) usage += " [" + OptionText(option) + "]";
  if (!syntax.operands.empty()) usage += " " + OperandsText(syntax);
  return usage;
}

std::string HelpOf(const Syntax& syntax) {
  std::string help = "usage: " + UsageOf(syntax) + "\n\nPrints " + std::string(syntax.summary) +
                     ".\n" + std::string(syntax.details) + '\n';
  for (const Operand& operand : syntax.operands) help += HelpLine(operand.name, operand.about);
  for (const Option& option : syntax.options) help += HelpLine(OptionText(option), option.about);
  return help + HelpLine(kHelpOption.name, kHelpOption.about);
}

std::string HelpOf(std::span<const Syntax* const> commands) {
  std::string help = "usage:\n";
  for (const Syntax* command : commands) help += "  " + UsageOf(*command) + '\n';
  help += "\nPrints, as CSV:\n";
  for (const Syntax* command : commands) help += HelpLine(command->name, command->summary);
  return help + "\n'tarnwick_tables COMMAND --help' tells more of a command.\n";
}

}  // namespace tarnwick
