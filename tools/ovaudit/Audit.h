#pragma once

#include <string>
#include <vector>

#include "Report.h"
#include "Stage.h"

namespace ovaudit {

/// What the command was asked for.
struct Request {
  std::string form;
  std::string bundle;
  std::string cache;
  std::vector<std::string> only;
  std::vector<std::string> ignored;
  std::string pictures;
  std::string styleSheet;
  std::string font;
  bool isMirrored = false;
  bool asJson = false;
};

/// Shows the stage in every language, as the installed platform has them, and leaves the pictures
/// that were asked for. Throws `Failure` when there are no such languages, or a picture cannot be
/// written.
[[nodiscard]] Report audit(Stage& stage, const Request& request);

}  // namespace ovaudit
