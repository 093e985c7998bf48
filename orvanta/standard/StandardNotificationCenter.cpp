#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
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
};

using Registrations = std::vector<std::shared_ptr<Registration>>;

// What a post walks through is a list that nobody changes: while posts are under way, the first
// change makes a copy. A registration that ends only dies in its place, since taking it out would
// cost a walk; the dead are taken out together, once they are the larger half.
class NamedRegistrations {
 public:
  [[nodiscard]] bool empty() const { return list_->size() == dead_ && posts_ == 0; }

  void add(std::shared_ptr<Registration> registration) {
    detach();
    list_->push_back(std::move(registration));
  }

  // What is left over goes to `remains`, to be destroyed where no lock is held.
  void bury(Registration& registration, std::vector<Handler>& remains) {
    registration.alive = false;
    ++dead_;
    if (posts_ == 0) {
      remains.push_back(std::exchange(registration.handler, nullptr));
      if (2 * dead_ > list_->size()) {
        takeOutTheDead(remains);
      }
    }
  }

  std::shared_ptr<const Registrations> beginPost() {
    ++posts_;
    isWalkedThrough_ = true;
    return list_;
  }

  // The list that `beginPost` gave must be let go of before.
  void endPost(std::vector<Handler>& remains) {
    if (--posts_ > 0) {
      return;
    }
    isWalkedThrough_ = false;
    if (dead_ > 0) {
      takeOutTheDead(remains);
    }
  }

 private:
  void detach() {
    if (std::exchange(isWalkedThrough_, false)) {
      list_ = std::make_shared<Registrations>(*list_);
    }
  }

  void takeOutTheDead(std::vector<Handler>& remains) {
    std::erase_if(*list_, [&](const std::shared_ptr<Registration>& registration) {
      if (registration->alive) {
        return false;
      }
      remains.push_back(std::move(registration->handler));
      return true;
    });
    dead_ = 0;
  }

  std::shared_ptr<Registrations> list_ = std::make_shared<Registrations>();
  std::size_t dead_ = 0;
  std::size_t posts_ = 0;
  bool isWalkedThrough_ = false;
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
    byName_[name].add(registration);
    byObserver_.emplace(observer, std::move(registration));
  }

  void removeObserver(const void* observer) override {
    // Outlives the lock: what handlers hold may come back here as it is destroyed.
    std::vector<Handler> remains;
    const std::scoped_lock lock(mutex_);
    const auto [first, last] = byObserver_.equal_range(observer);
    for (auto entry = first; entry != last; ++entry) {
      Registration& registration = *entry->second;
      const auto named = byName_.find(registration.name);
      named->second.bury(registration, remains);
      if (named->second.empty()) {
        byName_.erase(named);
      }
    }
    byObserver_.erase(first, last);
  }

  void postNotification(const platform::Notification& notification) override {
    const Post post(*this, notification.name);
    for (const std::shared_ptr<Registration>& registration : post.registrations()) {
      if (registration->wants(notification)) {
        registration->handler(notification);
      }
    }
  }

 private:
  // A post under way, also one that a handler's exception ends.
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
      std::vector<Handler> remains;
      const std::scoped_lock lock(center_.mutex_);
      const auto named = center_.byName_.find(name_);
      named->second.endPost(remains);
      if (named->second.empty()) {
        center_.byName_.erase(named);
      }
    }

    [[nodiscard]] const Registrations& registrations() const {
      static const Registrations none;
      return registrations_ == nullptr ? none : *registrations_;
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
