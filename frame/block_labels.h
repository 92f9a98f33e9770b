#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "frame/run_time_error.h"

namespace tavrin {

// The labels written in front of the lines of a generated program, indices 0
// to 300, with the counter of the next one. Shared by the generators and kept
// for the whole run: labels of an earlier program stay until overwritten.
class BlockLabels {
  public:
    static constexpr std::int32_t kLast = 300;

    QString& operator[](std::int32_t index) {
        if (index < 0 || index > kLast) {
            Raise(ErrorNumber::SubscriptOutOfRange);
        }
        return labels_[static_cast<std::size_t>(index)];
    }

    std::int32_t next = 0;

  private:
    std::array<QString, kLast + 1> labels_;
};

}  // namespace tavrin
