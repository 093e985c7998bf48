#include <array>
#include <typeinfo>
#include <utility>

#include <cxxabi.h>

#include <orvanta/locale/OVLocale.h>
#include <orvanta/text/PathString.h>

namespace orvanta {

namespace {

// Whether `other` is an instance of the class of `self`, or of a subclass: a `dynamic_cast` to a
// class that only the run time knows. The ABI has that operation, the language has not.
bool isOfClassOf(const OVLocale& self, const OVLocale& other) noexcept {
  const std::type_info& base = typeid(OVLocale);
  const std::type_info& wanted = typeid(self);
  if (wanted == base) {
    return true;
  }
  constexpr std::ptrdiff_t kNoHint = -1;
  return abi::__dynamic_cast(&other, dynamic_cast<const abi::__class_type_info*>(&base),
                             dynamic_cast<const abi::__class_type_info*>(&wanted),
                             kNoHint) != nullptr;
}

}  // namespace

OVLocale::OVLocale(String orvantaName, String appleName, String version,
                   std::shared_ptr<platform::Bundle> bundle, StringList locales) noexcept
    : orvantaLocaleName_(std::move(orvantaName)),
      appleLocaleName_(std::move(appleName)),
      version_(std::move(version)),
      bundle_(std::move(bundle)),
      fallbackLocales_(std::move(locales)) {}

OVLocale::~OVLocale() = default;

std::shared_ptr<OVLocale> OVLocale::initWithOrvantaName(String orvantaName, String appleName,
                                                        String version,
                                                        std::shared_ptr<platform::Bundle> bundle,
                                                        StringList locales) {
  return std::shared_ptr<OVLocale>(new OVLocale(std::move(orvantaName), std::move(appleName),
                                                std::move(version), std::move(bundle),
                                                std::move(locales)));
}

std::shared_ptr<OVLocale> OVLocale::initWithBundle(
    const std::shared_ptr<platform::Bundle>& bundle) {
  if (bundle == nullptr) {
    return nullptr;
  }
  const String name =
      path::stringByDeletingPathExtension(path::lastPathComponent(bundle->bundlePath()));
  const std::array keys = {HashedKey(OVOrvantaLanguageVersionKey),
                           HashedKey(OVOrvantaLanguageAppleIDKey),
                           HashedKey(OVOrvantaLanguageEquivalentsKey)};
  const std::vector<String> texts = bundle->textsForKeys(keys);
  const auto lookUp = [&](std::size_t index, const String& value) {
    return platform::lookUpResult(texts[index], String::fromStatic(keys[index].text), value);
  };
  String version = lookUp(0, {});
  String appleName = lookUp(1, name);
  String equivalents = lookUp(2, {});
  if (equivalents == OVOrvantaLanguageEquivalentsKey) {
    equivalents = {};
  }
  if (name.isAbsent() || appleName.isAbsent()) {
    return nullptr;
  }
  return initWithOrvantaName(name, std::move(appleName), std::move(version), bundle,
                             componentsSeparatedBy(',', equivalents));
}

bool OVLocale::isEqual(const OVLocale* other) const noexcept {
  return other != nullptr && isOfClassOf(*this, *other) &&
         appleLocaleName_.isSameObject(other->appleLocaleName_);
}

std::size_t OVLocale::hash() const noexcept {
  return reinterpret_cast<std::size_t>(this);
}

}  // namespace orvanta
