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

template <class T>
T TakeFirst(std::deque<T>& queue, T otherwise) {
  if (queue.empty()) return otherwise;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

std::vector<Message> DriverDesktop::TakeMessages() { return std::exchange(messages_, {}); }

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

}  // namespace tarnwick
