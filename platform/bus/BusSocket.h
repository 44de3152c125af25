#pragma once

#include <QString>
#include <string>

namespace quorb {

/// The first of some bus addresses, parted by semicolons, behind which a bus answers its greeting within a
/// second; empty when none does. Each has to be a socket of this machine ("unix:").
/// @param problem out: what was wrong with the last one that was tried.
QString FirstBusThatAnswers(const QString& addresses, std::string& problem);

}  // namespace quorb
