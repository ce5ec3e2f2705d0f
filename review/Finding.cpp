#include "review/Finding.h"

#include <array>

namespace
{

struct RuleFacts
{
    std::string_view name;
    Severity severity;
};

constexpr std::array<RuleFacts, ruleCount> facts{{{"dropped-line", Severity::Error},
                                                  {"bad-number", Severity::Error},
                                                  {"unknown-type", Severity::Error},
                                                  {"unknown-order", Severity::Error},
                                                  {"unknown-lock", Severity::Error},
                                                  {"cut-off", Severity::Error},
                                                  {"overlap", Severity::Error},
                                                  {"no-tagname", Severity::Error},
                                                  {"unknown-tag", Severity::Error},
                                                  {"bad-type", Severity::Error},
                                                  {"bad-write", Severity::Error},
                                                  {"blank-line", Severity::Warning},
                                                  {"ignored-count", Severity::Warning},
                                                  {"brace", Severity::Warning},
                                                  {"bit-space", Severity::Warning},
                                                  {"other-form", Severity::Warning},
                                                  {"order", Severity::Warning},
                                                  {"encoding", Severity::Warning}}};

} // namespace

std::string_view ruleName(Rule rule)
{
    return facts[static_cast<std::size_t>(rule)].name;
}

Severity severityOf(Rule rule)
{
    return facts[static_cast<std::size_t>(rule)].severity;
}
