#include <array>
#include <cstddef>
#include <mutex>
#include <span>
#include <typeinfo>
#include <utility>

#include <cxxabi.h>

#include <orvanta/locale/OVLocale.h>
#include <orvanta/text/PathString.h>

#ifdef _LIBCPP_VERSION
// The header of libc++ leaves out what its library has.
namespace __cxxabiv1 {                               // NOLINT(bugprone-reserved-identifier)
class __class_type_info;                             // NOLINT(bugprone-reserved-identifier)
extern "C" void* __dynamic_cast(const void* object,  // NOLINT(bugprone-reserved-identifier)
                                const __class_type_info* base, const __class_type_info* wanted,
                                std::ptrdiff_t hint);
}  // namespace __cxxabiv1
#endif

namespace orvanta {

namespace {

// The ABI's own view of a class. `std::type_info` is its first base.
const abi::__class_type_info* classInfo(const std::type_info& type) noexcept {
  return reinterpret_cast<const abi::__class_type_info*>(&type);
}

// Whether `other` is an instance of the dynamic type of `self`, or of a subclass. C++ has no
// `dynamic_cast` to a type known only at run time, so this calls the function of the Itanium ABI.
bool isOfClassOf(const OVLocale& self, const OVLocale& other) noexcept {
  const std::type_info& base = typeid(OVLocale);
  const std::type_info& wanted = typeid(self);
  if (wanted == base) {
    return true;
  }
  constexpr std::ptrdiff_t kNoHint = -1;
  return abi::__dynamic_cast(&other, classInfo(base), classInfo(wanted), kNoHint) != nullptr;
}

// The configuration keys. `takeOver` expects their texts in this order.
std::span<const HashedKey> entryKeys() {
  static const std::array keys = {HashedKey(OVOrvantaLanguageVersionKey),
                                  HashedKey(OVOrvantaLanguageAppleIDKey),
                                  HashedKey(OVOrvantaLanguageEquivalentsKey)};
  return keys;
}

}  // namespace

// The reader of a table that has not been read yet, and the mutex that guards reading it.
struct OVLocale::Unread {
  explicit Unread(platform::Bundle::TextsReader reader) noexcept : read(std::move(reader)) {}
  std::mutex mutex;
  platform::Bundle::TextsReader read;  // Empty once it has succeeded.
};

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

std::shared_ptr<OVLocale> OVLocale::recordOf(const std::shared_ptr<platform::Bundle>& bundle) {
  const String path = bundle == nullptr ? String() : bundle->bundlePath();
  const String name = path::stringByDeletingPathExtension(path::lastPathComponent(path));
  // The name is also the platform's identifier, unless the table names another one.
  return name.isAbsent() ? nullptr : initWithOrvantaName(name, name, {}, bundle, {});
}

std::shared_ptr<OVLocale> OVLocale::initWithBundle(
    const std::shared_ptr<platform::Bundle>& bundle) {
  auto record = recordOf(bundle);
  if (record != nullptr) {
    record->takeOver(bundle->textsForKeys(entryKeys()));
  }
  return record;
}

std::shared_ptr<OVLocale> OVLocale::initWithUnreadBundle(
    const std::shared_ptr<platform::Bundle>& bundle) {
  platform::Bundle::TextsReader read = bundle == nullptr ? nullptr : bundle->laterTexts();
  if (!read) {
    return initWithBundle(bundle);
  }
  auto record = recordOf(bundle);
  if (record != nullptr) {
    record->unread_ = std::make_unique<Unread>(std::move(read));
    record->isUnread_.store(true, std::memory_order_relaxed);
  }
  return record;
}

void OVLocale::readTable() const {
  const std::lock_guard lock(unread_->mutex);
  if (!isUnread_.load(std::memory_order_relaxed)) {
    return;
  }
  takeOver(unread_->read(entryKeys()));
  unread_->read = nullptr;
  isUnread_.store(false, std::memory_order_release);
}

void OVLocale::takeOver(const std::vector<String>& texts) const {
  const auto lookUp = [&](std::size_t index, const String& value) {
    return platform::lookUpResult(texts[index], String::fromStatic(entryKeys()[index].text), value);
  };
  String equivalents = lookUp(2, {});
  if (equivalents == OVOrvantaLanguageEquivalentsKey) {
    equivalents = {};
  }
  fallbackLocales_ = componentsSeparatedBy(',', equivalents);
  version_ = lookUp(0, {});
  appleLocaleName_ = lookUp(1, appleLocaleName_);
}

bool OVLocale::isEqual(const OVLocale* other) const {
  return other != nullptr && isOfClassOf(*this, *other) &&
         appleLocaleName().isSameObject(other->appleLocaleName());
}

std::size_t OVLocale::hash() const noexcept {
  return reinterpret_cast<std::size_t>(this);
}

}  // namespace orvanta
