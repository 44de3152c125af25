#include "SystemRegion.h"

#include <langinfo.h>
#include <locale.h>

namespace quorb {

namespace {

std::string LocaleItem(nl_item item) {
  const locale_t locale = newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, "", nullptr);
  if (locale == nullptr) return {};
  std::string text = nl_langinfo_l(item, locale);
  freelocale(locale);
  return text;
}

}  // namespace

std::string SystemRegion::DecimalSeparator() {
  return LocaleItem(RADIXCHAR);
}

std::string SystemRegion::ThousandsSeparator() {
  return LocaleItem(THOUSEP);
}

}  // namespace quorb
