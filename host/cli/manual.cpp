#include "host/cli/manual.h"

#include <sstream>
#include <vector>

namespace zu::cli {
namespace {

/// Text for troff: what it would take for orders is marked.
std::string plain(const std::string& text) {
  std::string out;
  bool line_begins = true;
  for (char c : text) {
    if (line_begins && (c == '.' || c == '\'')) out += "\\&";
    if (c == '\\')
      out += "\\e";
    else if (c == '-')
      out += "\\-";
    else
      out += c;
    line_begins = c == '\n';
  }
  return out;
}

/// Commands and options that a person may see.
std::vector<const CLI::App*> commands_of(const CLI::App& parser) {
  std::vector<const CLI::App*> shown;
  for (const CLI::App* each : parser.get_subcommands({}))
    if (!each->get_group().empty()) shown.push_back(each);
  return shown;
}
std::vector<const CLI::Option*> options_of(const CLI::App& app) {
  std::vector<const CLI::Option*> shown;
  for (const CLI::Option* each : app.get_options())
    if (!each->get_group().empty()) shown.push_back(each);
  return shown;
}

std::string names_of(const CLI::Option& option) {
  std::string names;
  auto add = [&](const std::string& name) { names += (names.empty() ? "" : ", ") + name; };
  for (const std::string& name : option.get_snames()) add("-" + name);
  for (const std::string& name : option.get_lnames()) add("--" + name);
  return names.empty() ? option.get_name(true) : names;
}

void write_options(const CLI::App& app, std::ostream& out) {
  for (const CLI::Option* each : options_of(app)) {
    bool takes_value = !each->get_positional() && each->get_type_size() > 0;
    out << ".TP\n.B " << plain(names_of(*each));
    if (takes_value) out << " " << plain(each->get_type_name());
    out << '\n' << plain(each->get_description()) << '\n';
  }
}

void write_command(const CLI::App& command, const std::string& name, std::ostream& out) {
  out << ".SS " << plain(name) << '\n' << plain(command.get_description()) << ".\n";
  write_options(command, out);
  if (std::string footer = command.get_footer(); !footer.empty())
    out << ".PP\n.nf\n" << plain(footer) << "\n.fi\n";
  for (const CLI::App* each : commands_of(command))
    write_command(*each, name + " " + each->get_name(), out);
}

/// The words that may follow a command, as an entry of the script's table.
void write_words(const CLI::App& app, const std::string& path, std::ostream& out) {
  std::string words;
  auto add = [&](const std::string& word) { words += (words.empty() ? "" : " ") + word; };
  for (const CLI::App* each : commands_of(app)) add(each->get_name());
  for (const CLI::Option* each : options_of(app)) {
    for (const std::string& name : each->get_snames()) add("-" + name);
    for (const std::string& name : each->get_lnames()) add("--" + name);
  }
  out << "    ['" << path << "']='" << words << "'\n";
  for (const CLI::App* each : commands_of(app))
    write_words(*each, path + " " + each->get_name(), out);
}

}  // namespace

std::string man_page(const CLI::App& parser, const std::string& version) {
  std::ostringstream out;
  out << ".TH ZUGRID 1 \"\" \"zugrid " << plain(version) << "\"\n.SH NAME\nzugrid \\- "
      << plain(parser.get_description()) << "\n.SH SYNOPSIS\n.B zugrid\n.I COMMAND\n[options]\n"
      << ".SH OPTIONS\n";
  write_options(parser, out);
  out << ".SH COMMANDS\n";
  for (const CLI::App* each : commands_of(parser)) write_command(*each, each->get_name(), out);
  out << ".SH EXIT STATUS\n0 done, 1 failed with one line on standard error that names the file "
         "and "
         "the reason, 2 bad usage.\n";
  return out.str();
}

std::string bash_completion(const CLI::App& parser) {
  std::ostringstream out;
  out << "# bash completion of zugrid\n_zugrid() {\n  local -A known=(\n";
  write_words(parser, "zugrid", out);
  out << R"(  )
  local word=${COMP_WORDS[COMP_CWORD]} path=zugrid i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    [[ ${known["$path ${COMP_WORDS[i]}"]+known} ]] && path+=" ${COMP_WORDS[i]}"
  done
  mapfile -t COMPREPLY < <(compgen -W "${known[$path]}" -- "$word")
  if [[ $word != -* && $path != zugrid ]]; then
    compopt -o filenames
    mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -f -- "$word")
  fi
}
complete -F _zugrid zugrid
)";
  return out.str();
}

}  // namespace zu::cli
