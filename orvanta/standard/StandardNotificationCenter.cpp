#include <atomic>
#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

#include <orvanta/standard/StandardNotificationCenter.h>

namespace orvanta::standard {

namespace {

using Handler = platform::NotificationCenter::Handler;

struct Registration {
  Registration(String wantedName, const void* wantedObject, Handler wantedHandler)
      : name(std::move(wantedName)), object(wantedObject), handler(std::move(wantedHandler)) {}

  bool wants(const platform::Notification& notification) const {
    return alive.load() && (object == nullptr || object == notification.object);
  }

  const String name;
  const void* const object;
  std::atomic<bool> alive{true};
  Handler handler;
  // Set, under the lock, once `ReleasedHandlers` has the registration, whose link this is.
  bool isReleased = false;
  std::shared_ptr<Registration> nextReleased;
};

// Registrations that nobody calls any more. Their handlers are destroyed with the object, which
// must outlive the lock: what handlers hold may call the centre. Linked by the registrations
// themselves, because nothing may fail for want of memory where a registration ends.
class ReleasedHandlers {
 public:
  ReleasedHandlers() = default;
  ReleasedHandlers(const ReleasedHandlers&) = delete;
  ReleasedHandlers& operator=(const ReleasedHandlers&) = delete;

  ~ReleasedHandlers() {
    while (first_ != nullptr) {
      const std::shared_ptr<Registration> registration = std::move(first_);
      first_ = std::move(registration->nextReleased);
      registration->handler = nullptr;
    }
  }

  void add(const std::shared_ptr<Registration>& registration) noexcept {
    if (!std::exchange(registration->isReleased, true)) {
      registration->nextReleased = std::exchange(first_, registration);
    }
  }

 private:
  std::shared_ptr<Registration> first_;
};

using Registrations = std::vector<std::shared_ptr<Registration>>;

// The registrations for one name, in their order. A post walks through a list that is not changed
// meanwhile: the first addition during a post makes a copy (copy-on-write). A copy at each post
// would add a sixth to the benchmark's row `switch`. A registration that ends becomes a tombstone;
// tombstones are erased together once they are more than half of the list, so that the cost of an
// end is amortized.
class NamedRegistrations {
 public:
  [[nodiscard]] bool empty() const noexcept { return list_->size() == dead_ && posts_ == 0; }

  // Makes room for one more, so that `add` cannot fail.
  void reserveOne() {
    if (isWalked_) {
      list_ = std::make_shared<Registrations>(*list_);
      isWalked_ = false;
    }
    if (list_->size() == list_->capacity()) {
      list_->reserve(2 * list_->size() + 1);
    }
  }
  void add(std::shared_ptr<Registration> registration) noexcept {
    list_->push_back(std::move(registration));
  }

  void end(const std::shared_ptr<Registration>& registration, ReleasedHandlers& released) noexcept {
    registration->alive = false;
    ++dead_;
    if (posts_ > 0) {
      return;
    }
    released.add(registration);
    if (2 * dead_ > list_->size()) {
      eraseDead(released);
    }
  }

  std::shared_ptr<const Registrations> beginPost() noexcept {
    ++posts_;
    isWalked_ = true;
    return list_;
  }

  // The list that `beginPost` gave must have been released.
  void endPost(ReleasedHandlers& released) noexcept {
    if (--posts_ > 0) {
      return;
    }
    isWalked_ = false;
    if (dead_ > 0) {
      eraseDead(released);
    }
  }

 private:
  void eraseDead(ReleasedHandlers& released) noexcept {
    std::erase_if(*list_, [&](const std::shared_ptr<Registration>& registration) {
      if (registration->alive) {
        return false;
      }
      released.add(registration);
      return true;
    });
    dead_ = 0;
  }

  std::shared_ptr<Registrations> list_ = std::make_shared<Registrations>();
  std::size_t dead_ = 0;
  std::size_t posts_ = 0;  // Under way.
  bool isWalked_ = false;  // By one of them.
};

class StandardNotificationCenter final : public platform::NotificationCenter {
 public:
  void addObserver(const void* observer, const String& name, const void* object,
                   Handler handler) override {
    if (!handler) {
      return;
    }
    auto registration = std::make_shared<Registration>(name, object, std::move(handler));
    const std::scoped_lock lock(mutex_);
    NamedRegistrations& named = byName_[name];
    named.reserveOne();
    byObserver_.emplace(observer, registration);
    named.add(std::move(registration));
  }

  void removeObserver(const void* observer) noexcept override {
    ReleasedHandlers released;
    const std::scoped_lock lock(mutex_);
    const auto [first, last] = byObserver_.equal_range(observer);
    for (auto entry = first; entry != last; ++entry) {
      const auto named = byName_.find(entry->second->name);
      named->second.end(entry->second, released);
      if (named->second.empty()) {
        byName_.erase(named);
      }
    }
    byObserver_.erase(first, last);
  }

  void postNotification(const platform::Notification& notification) override {
    const Post post(*this, notification.name);
    std::exception_ptr thrown;
    for (const std::shared_ptr<Registration>& registration : post.registrations()) {
      if (!registration->wants(notification)) {
        continue;
      }
      try {
        registration->handler(notification);
      } catch (...) {
        thrown = thrown == nullptr ? std::current_exception() : thrown;
      }
    }
    if (thrown != nullptr) {
      std::rethrow_exception(thrown);
    }
  }

 private:
  // A post under way.
  class Post {
   public:
    Post(StandardNotificationCenter& center, const String& name) : center_(center), name_(name) {
      const std::scoped_lock lock(center_.mutex_);
      const auto named = center_.byName_.find(name);
      if (named != center_.byName_.end()) {
        registrations_ = named->second.beginPost();
      }
    }
    Post(const Post&) = delete;
    Post& operator=(const Post&) = delete;

    ~Post() {
      if (registrations_ == nullptr) {
        return;
      }
      registrations_.reset();
      ReleasedHandlers released;
      const std::scoped_lock lock(center_.mutex_);
      const auto named = center_.byName_.find(name_);
      named->second.endPost(released);
      if (named->second.empty()) {
        center_.byName_.erase(named);
      }
    }

    [[nodiscard]] std::span<const std::shared_ptr<Registration>> registrations() const noexcept {
      return registrations_ == nullptr ? std::span<const std::shared_ptr<Registration>>()
                                       : std::span(*registrations_);
    }

   private:
    StandardNotificationCenter& center_;
    const String name_;
    std::shared_ptr<const Registrations> registrations_;
  };

  std::mutex mutex_;
  std::unordered_map<String, NamedRegistrations, TextHash, TextEqual> byName_;
  std::unordered_multimap<const void*, std::shared_ptr<Registration>> byObserver_;
};

}  // namespace

std::shared_ptr<platform::NotificationCenter> makeNotificationCenter() {
  return std::make_shared<StandardNotificationCenter>();
}

}  // namespace orvanta::standard
