#pragma once
// Coordinate systems and the operations between them, as PROJ makes them.

#include <memory>
#include <string>

#include <proj.h>

namespace zu::platform {

struct pj_destroyer {
  void operator()(PJ* object) const { proj_destroy(object); }
};
using pj_ptr = std::unique_ptr<PJ, pj_destroyer>;

/// What PROJ needs on one thread. It never prints; the last message is kept.
class proj_thread {
 public:
  static const std::shared_ptr<proj_thread>& current();

  proj_thread();
  ~proj_thread();
  proj_thread(const proj_thread&) = delete;
  proj_thread& operator=(const proj_thread&) = delete;

  PJ_CONTEXT* context() { return context_; }
  /// The system that `text` names; null if none, with the reason in `message()`.
  pj_ptr system(const std::string& text);
  const std::string& message() const { return message_; }

 private:
  static void take(void* self, int level, const char* text);
  PJ_CONTEXT* context_;
  std::string message_;
};

/// The way from one system to another; good on the thread that made it.
struct operation {
  std::shared_ptr<proj_thread> thread;  // outlives the object below
  pj_ptr pj;                            // null where the systems do not differ
};

/// Null if a text is not understood or no way is known. Kept by the pair of texts.
std::shared_ptr<const operation> operation_between(const std::string& source,
                                                   const std::string& target);

}  // namespace zu::platform
