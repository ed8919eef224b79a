// Errors of the astronomy against reference data, told so that a tolerance can be judged.
#pragma once

#include <cmath>
#include <cstddef>
#include <iostream>
#include <string>

namespace tarnwick {

// Collects errors in one unit.
class ErrorStatistics {
 public:
  void Add(double error) {
    ++count_;
    sum_ += error;
    squares_ += error * error;
    largest_ = std::fmax(largest_, std::fabs(error));
  }

  std::size_t Count() const { return count_; }
  double Mean() const { return sum_ / static_cast<double>(count_); }
  double Rms() const { return std::sqrt(squares_ / static_cast<double>(count_)); }
  double Largest() const { return largest_; }

  void Print(const std::string& what, const std::string& unit) const {
    std::cout << "[ accuracy ] " << what << ": " << count_ << " values, mean " << Mean() << ", rms "
              << Rms() << ", largest " << Largest() << " " << unit << "\n";
  }

 private:
  std::size_t count_ = 0;
  double sum_ = 0;
  double squares_ = 0;
  double largest_ = 0;
};

}  // namespace tarnwick
