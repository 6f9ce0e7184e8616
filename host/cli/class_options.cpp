#include "host/cli/class_options.h"

#include <algorithm>
#include <iterator>

#include "host/cli/commands.h"
#include "host/cli/option_texts.h"

namespace zu::cli {
namespace {

enum method : std::int32_t {
  equal = 0,
  deviation = 1,
  logarithmic = 2,
  quantile = 3,
  natural = 4,
  geometrical = 5
};
constexpr const char* method_names[] = {"equal",    "stddev",  "log",
                                        "quantile", "natural", "geometric"};
constexpr const char* starts[] = {"1", "2", "5"};

template <std::size_t N>
std::int32_t place_of(const char* const (&names)[N], const std::string& name) {
  auto found = std::find(std::begin(names), std::end(names), name);
  return static_cast<std::int32_t>(found - std::begin(names));
}

void refuse_if(bool given, const char* option, const char* reason) {
  if (given) throw usage_error(std::string(option) + ": " + reason);
}

void check(const class_texts& given, std::int32_t method) {
  const bool log = method == logarithmic;
  refuse_if(given.digits && log, "--digits", "the method \"log\" rounds by its --power");
  const char* log_alone = "goes with the method \"log\"";
  refuse_if(!log && !given.start.empty(), "--start", log_alone);
  refuse_if(!log && given.power.has_value(), "--power", log_alone);
  refuse_if(!log && given.two_sided, "--two-sided", log_alone);
  refuse_if(method != deviation && !given.coefficient.empty(), "--coefficient",
            "goes with the method \"stddev\"");
  refuse_if(method != natural && given.seed.has_value(), "--seed",
            "goes with the method \"natural\"");
  const char* own_limits = "the method \"stddev\" has its limits from mean and deviation";
  refuse_if(method == deviation && !given.minimum.empty(), "--min", own_limits);
  refuse_if(method == deviation && !given.maximum.empty(), "--max", own_limits);
}

}  // namespace

CLI::Option* add_class_options(CLI::App& options, const std::string& method, class_texts& given) {
  CLI::Option* added =
      options
          .add_option(method, given.method,
                      "equal, stddev, log (1, 2, 5, 10, ...), quantile, natural (breaks of a "
                      "sample) or geometric")
          ->check(CLI::IsMember(
              std::vector<std::string>(std::begin(method_names), std::end(method_names))))
          ->type_name("METHOD");
  options.add_option("--count", given.count, "number of classes (10); log has as many as it needs")
      ->check(CLI::Range(1, 100000))
      ->type_name("N");
  options.add_option("--min", given.minimum, "least boundary (the field's minimum)")
      ->type_name("NUMBER");
  options.add_option("--max", given.maximum, "greatest boundary (the field's maximum)")
      ->type_name("NUMBER");
  options
      .add_option("--digits", given.digits,
                  "round boundaries to multiples of ten to this power (no rounding)")
      ->check(CLI::Range(-10, 10))
      ->type_name("D");
  options
      .add_option("--coefficient", given.coefficient,
                  "stddev: deviations from the mean to the outer boundaries (1)")
      ->type_name("C");
  options.add_option("--start", given.start, "log: the first boundary is 1, 2 or 5 (1)")
      ->check(CLI::IsMember({"1", "2", "5"}))
      ->type_name("1|2|5");
  options
      .add_option("--power", given.power,
                  "log: times ten to this power (two powers below the maximum's)")
      ->check(CLI::Range(-300, 300))
      ->type_name("P");
  options.add_flag("--two-sided", given.two_sided, "log: boundaries below zero too");
  options
      .add_option("--seed", given.seed,
                  "natural: draw the sample by this number, the same each time")
      ->type_name("NUMBER");
  return added;
}

class_request request_of(const class_texts& given) {
  class_request request;
  request.method = place_of(method_names, given.method);
  check(given, request.method);
  request.count = given.count.value_or(request.count);
  request.digits = given.digits.value_or(request.digits);
  if (!given.coefficient.empty())
    request.coefficient = number_of("--coefficient", given.coefficient);
  if (!given.start.empty()) request.start = place_of(starts, given.start);
  request.has_power = given.power.has_value(), request.power = given.power.value_or(0);
  request.two_sided = given.two_sided;
  request.has_minimum = !given.minimum.empty(), request.has_maximum = !given.maximum.empty();
  if (request.has_minimum) request.minimum = number_of("--min", given.minimum);
  if (request.has_maximum) request.maximum = number_of("--max", given.maximum);
  request.has_seed = given.seed.has_value(), request.seed = given.seed.value_or(0);
  return request;
}

}  // namespace zu::cli
