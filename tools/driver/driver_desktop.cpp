#include "tools/driver/driver_desktop.h"

#include <utility>

namespace tarnwick {
namespace {

bool Offers(MessageButtons buttons, MessageAnswer answer) {
  switch (buttons) {
    case MessageButtons::kOk:
      return answer == MessageAnswer::kOk;
    case MessageButtons::kOkCancel:
      return answer == MessageAnswer::kOk || answer == MessageAnswer::kCancel;
    case MessageButtons::kYesNo:
      return answer == MessageAnswer::kYes || answer == MessageAnswer::kNo;
  }
  return false;
}

std::size_t LengthOf(const PrintedTable& table) { return table.row_count; }
std::size_t LengthOf(const PrintedGrids& grids) { return grids.page_count; }

std::string PrintedLine(std::string_view where, const PrintedDocument& document) {
  const std::size_t length =
      std::visit([](const auto& printed) { return LengthOf(printed); }, document);
  return std::string(where) + "|" + TitleOf(document) + "|" + std::to_string(length);
}

template <class T>
T TakeFirst(std::deque<T>& queue, T otherwise) {
  if (queue.empty()) return otherwise;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

std::vector<Message> DriverDesktop::TakeMessages() { return std::exchange(messages_, {}); }

std::vector<std::string> DriverDesktop::TakePrinted() { return std::exchange(printed_, {}); }

bool DriverDesktop::TakeEnd() { return std::exchange(ended_, false); }

MessageAnswer DriverDesktop::ShowMessage(const Message& message) {
  messages_.push_back(message);
  const MessageAnswer agreement =
      message.buttons == MessageButtons::kYesNo ? MessageAnswer::kYes : MessageAnswer::kOk;
  const MessageAnswer answer = TakeFirst(answers_, agreement);
  return Offers(message.buttons, answer) ? answer : agreement;
}

std::optional<std::filesystem::path> DriverDesktop::AskSavePath(const std::string& /*title*/,
                                                                const std::string& /*suggestion*/) {
  return TakeFirst(save_paths_, std::optional<std::filesystem::path>());
}

std::string DriverDesktop::Print(const PrintedDocument& document, PaperSize /*paper*/) {
  printed_.push_back(PrintedLine("printer", document));
  return {};
}

std::string DriverDesktop::SavePDF(const PrintedDocument& document,
                                   const std::filesystem::path& /*file*/, PaperSize paper) {
  printed_.push_back(PrintedLine(PaperName(paper), document));
  return {};
}

}  // namespace tarnwick
