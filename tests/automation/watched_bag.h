#pragma once

#include <map>
#include <string>
#include <vector>

#include "mirolen/automation/PropertyBag.h"

namespace mirolen::automation {

/// A bag that keeps the order of its traffic and the last fallback of each key.
class WatchedBag : public MemoryPropertyBag {
 public:
  Variant read(const std::string& key, const Variant& fallback) const override {
    reads.push_back(key);
    fallbacks[key] = fallback;
    return MemoryPropertyBag::read(key, fallback);
  }
  void write(const std::string& key, const Variant& value, const Variant& fallback) override {
    writes.push_back(key);
    fallbacks[key] = fallback;
    MemoryPropertyBag::write(key, value, fallback);
  }

  mutable std::vector<std::string> reads;
  std::vector<std::string> writes;
  mutable std::map<std::string, Variant> fallbacks;
};

}  // namespace mirolen::automation
