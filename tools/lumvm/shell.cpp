// Completion scripts and the manual page, from the descriptions of commands and options.
#include <fmt/format.h>

#include "lumvm/interface.h"
#include "support/library.h"

namespace lum::tool {
namespace {

std::string Functions() {
  std::string names;
  std::string_view last;
  for (const support::Export& entry : support::Exports()) {
    if (entry.function != last) names.append(last.empty() ? "" : " ").append(entry.function);
    last = entry.function;
  }
  return names;
}

std::vector<const CLI::App*> Commands(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App*) { return true; });
}

std::vector<const CLI::Option*> Options(const CLI::App& command, bool is_positional) {
  std::vector<const CLI::Option*> result;
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_positional() == is_positional) result.push_back(option);
  }
  return result;
}

bool TakesValue(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

std::vector<std::string> Names(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  return names;
}

// The words that may follow an option, where there is a list of them.
std::string Values(const std::string& long_name) {
  if (long_name == "type") return "32f 64f 32fc 64fc";
  if (long_name == "tag") return "A11 A21 A24 A26 A50 A53";
  if (long_name == "layer") return "avx512 avx2 portable";
  if (long_name == "format") return "text csv raw npy json";
  return "";
}

std::string Replaced(std::string text, std::string_view what, std::string_view by) {
  for (size_t at = text.find(what); at != text.npos; at = text.find(what, at + by.size())) text.replace(at, what.size(), by);
  return text;
}

std::string BashScript(const CLI::App& app) {
  std::string commands, options, values;
  for (const CLI::App* command : Commands(app)) {
    commands += command->get_name() + " ";
    options += fmt::format("    {}) options=\"", command->get_name());
    for (const CLI::Option* option : Options(*command, false)) {
      for (const std::string& name : Names(*option)) options += name + " ";
    }
    options.back() = '"';
    options += " ;;\n";
  }
  for (const CLI::Option* option : Options(*app.get_subcommand("apply"), false)) {
    const std::string list = Values(option->get_lnames().empty() ? "" : option->get_lnames()[0]);
    if (list.empty()) continue;
    std::string pattern;
    for (const std::string& name : Names(*option)) pattern += (pattern.empty() ? "" : "|") + name;
    values += fmt::format("    {}) mapfile -t COMPREPLY < <(compgen -W \"{}\" -- \"$word\"); return ;;\n", pattern, list);
  }
  return fmt::format(R"(# Completion of lumvm for bash, printed by lumvm itself.
_lumvm() {{
  local word=${{COMP_WORDS[COMP_CWORD]}} command=${{COMP_WORDS[1]}} options=""
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W "{}--help --version" -- "$word")
    return
  fi
  case ${{COMP_WORDS[COMP_CWORD-1]}} in
{}  esac
  case $command in
{}  esac
  case $word in
    -*) mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word"); return ;;
  esac
  if [ "$COMP_CWORD" -eq 2 ]; then
    case $command in
      completion) mapfile -t COMPREPLY < <(compgen -W "bash zsh" -- "$word"); return ;;
      man) return ;;
      *) mapfile -t COMPREPLY < <(compgen -W "{}" -- "$word"); return ;;
    esac
  fi
  mapfile -t COMPREPLY < <(compgen -f -- "$word")
}}
complete -o filenames -F _lumvm lumvm
)",
                     commands, values, options, Functions());
}

// A description between single quotation marks and brackets.
std::string ZshText(const std::string& text) {
  return Replaced(Replaced(Replaced(Replaced(text, "'", "'\\''"), "[", "("), "]", ")"), ":", "\\:");
}

std::string ZshScript(const CLI::App& app) {
  std::string commands, cases;
  for (const CLI::App* command : Commands(app)) {
    commands += fmt::format("    '{}:{}'\n", command->get_name(), ZshText(command->get_description()));
    cases += fmt::format("    {})\n      _arguments", command->get_name());
    for (const CLI::Option* option : Options(*command, false)) {
      const std::string list = Values(option->get_lnames().empty() ? "" : option->get_lnames()[0]);
      const std::string value = !TakesValue(*option) ? "" : list.empty() ? ":value:_files" : fmt::format(":value:({})", list);
      for (const std::string& name : Names(*option)) {
        cases += fmt::format(" \\\n        '*{}[{}]{}'", name, ZshText(option->get_description()), value);
      }
    }
    for (const CLI::Option* option : Options(*command, true)) {
      const std::string& name = option->get_name();
      if (name == "function") cases += " \\\n        '1:function:($functions)'";
      else if (name == "shell") cases += " \\\n        '1:shell:(bash zsh)'";
      else cases += fmt::format(" \\\n        '*:{}:{}'", name, name == "word" ? "($functions)" : "_files");
    }
    cases += "\n      ;;\n";
  }
  cases = Replaced(cases, "($functions)", "(" + Functions() + ")");
  return fmt::format(R"(#compdef lumvm
# Completion of lumvm for zsh, printed by lumvm itself.
_lumvm() {{
  local -a commands
  commands=(
{}  )
  if (( CURRENT == 2 )); then
    _describe command commands
    _arguments '--help[describe the commands]' '--version[version, layer and build]'
    return
  fi
  shift words
  (( CURRENT-- ))
  case $words[1] in
{}  esac
}}
if [ "$funcstack[1]" = _lumvm ]; then _lumvm "$@"; else compdef _lumvm lumvm; fi
)",
                     commands, cases);
}

// Text that roff must not take for requests.
std::string Roff(const std::string& text) {
  std::string escaped = Replaced(Replaced(text, "\\", "\\e"), "-", "\\-");
  return escaped.starts_with('.') || escaped.starts_with('\'') ? "\\&" + escaped : escaped;
}

std::string ManualOptions(const CLI::App& command) {
  std::string text;
  for (const bool is_positional : {true, false}) {
    for (const CLI::Option* option : Options(command, is_positional)) {
      std::string names;
      for (const std::string& name : Names(*option)) names += (names.empty() ? "\\fB" : ", \\fB") + Roff(name) + "\\fR";
      if (is_positional) names = "\\fI" + Roff(option->get_name()) + "\\fR";
      else if (TakesValue(*option)) names += " \\fIvalue\\fR";
      text += fmt::format(".TP\n{}\n{}\n", names, Roff(option->get_description()));
    }
  }
  return text;
}

}  // namespace

std::string CompletionScript(const CLI::App& app, const std::string& shell) {
  return shell == "bash" ? BashScript(app) : ZshScript(app);
}

std::string ManualPage(const CLI::App& app) {
  std::string page = fmt::format(".TH LUMVM 1\n.SH NAME\nlumvm \\- {}\n.SH SYNOPSIS\n", Roff(app.get_description()));
  for (const CLI::App* command : Commands(app)) {
    page += fmt::format(".B lumvm {}\n", command->get_name());
    for (const CLI::Option* option : Options(*command, true)) page += fmt::format(".I {}\n", Roff(option->get_name()));
    page += ".RI [ options ]\n.br\n";
  }
  page += ".B lumvm \\-\\-version\n.SH COMMANDS\n";
  for (const CLI::App* command : Commands(app)) {
    page += fmt::format(".SS {}\n{}.\n{}", command->get_name(), Roff(command->get_description()), ManualOptions(*command));
  }
  page += R"(.SH EXAMPLES
.nf
lumvm apply exp 1 2.5
lumvm apply Exp \-t 32f \-\-tag A11 numbers.txt \-o results.txt
lumvm apply log prices.csv \-\-column price \-o with_logarithms.csv
lumvm apply Sqrt array.npy \-o roots.npy
lumvm compare Sin 0.5 1e10
lumvm list complex hyperbolic
.fi
.SH REPORTS
Elements that overflow, underflow, are a pole or lie outside of a function's domain are counted on standard error by kind, with the
index of the first one, from 0; with
.B \-\-json
they are a part of the document.
Numbers that the type cannot hold become infinities or zeros, with a warning.
.SH EXIT STATUS
)";
  page += Roff(app.get_footer()) + "\n";
  return page;
}

}  // namespace lum::tool
