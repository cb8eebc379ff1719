#include "lumvm/interface.h"

#include <fmt/format.h>

#include <functional>

#include "lumvm/commands.h"
#include "lumvm/numbers.h"

namespace lum::tool {
namespace {

constexpr const char* footer =
    "Exit codes: 0 done; 1 the output cannot be written or the library cannot be loaded; 2 something is wrong with the request "
    "or "
    "the input. Elements that overflow or leave a domain are reported on standard error and leave the exit code 0.";

// Takes the blank away that Arguments puts before negative numbers.
void Restore(std::string& text) {
  if (text.starts_with(" -")) text.erase(0, 1);
}

void AddFunction(CLI::App* command, std::string& function) {
  command
      ->add_option("function", function,
                   "the function, by its name in C, C++ or Python, in any case: Exp, log, lumsExp_64f_A53")
      ->required();
}

void AddInput(CLI::App* command, ApplyOptions& options) {
  AddFunction(command, options.function);
  command->add_option(
      "input", options.arguments,
      "numbers, or files of numbers; - is standard input, which is also taken when there is no input. A function of two "
      "inputs takes two files, or one in which the elements of both alternate. A file is text with numbers "
      "separated by white space or commas (# starts a comment; complex: 1+2i, (1,2) or two numbers), or a .npy array");
  command->add_option(
      "-t,--type", options.type,
      "element type: 32f (float), 64f (double), 32fc (complex64), 64fc (complex128); where it is not given that of "
      "the .npy file, otherwise 64f, or 64fc for complex numbers");
  command->add_option("-v,--value", options.value, "the number that all elements share (the exponent of Powx)");
  command
      ->add_option(
          "-c,--column", options.columns,
          "the input is a CSV table, and this column of it is taken, by name or by number from 1; once for each input, or "
          "for each part of complex inputs")
      ->allow_extra_args(false);
  command->add_option("--delimiter", options.delimiter,
                      "between the fields of a table; the first line tells when it is not given");
  command->add_option("--layer", options.layer, "avx512, avx2 or portable; the fastest that the processor runs when not given");
  command->add_flag("-b,--binary", options.is_raw,
                    "input and output are raw elements as they stand in memory; a .npy file stays one");
}

void AddApply(CLI::App& app) {
  auto options = std::make_shared<ApplyOptions>();
  auto* apply = app.add_subcommand("apply", "apply a function to numbers, files or columns of tables");
  AddInput(apply, *options);
  apply->add_option("--tag", options->tag,
                    "accuracy: A11 A21 A24 (32-bit types), A26 A50 A53, or low, middle, high; the highest when not given");
  apply->add_option(
      "-o,--output", options->output,
      "output file, written whole or not at all; - is standard output. The ending .npy, .csv or .json says the format");
  apply->add_option("-f,--format", options->format,
                    "output format: text, csv (a table's lines with the results behind them), raw, npy, json");
  apply->add_flag("--json", options->is_json, "one JSON document with results, reports and warnings");
  apply->add_flag_callback(
      "--hex", [=] { options->notation = Notation::hexadecimal; }, "write hexadecimal floating-point numbers");
  apply->add_flag_callback(
      "--bits", [=] { options->notation = Notation::bits; }, "write bit patterns");
  apply->callback([=] {
    for (std::string& argument : options->arguments) Restore(argument);
    for (std::string* text : {&options->value, &options->output}) Restore(*text);
    Apply(*options);
  });
}

void AddCompare(CLI::App& app) {
  auto options = std::make_shared<ApplyOptions>();
  auto* compare = app.add_subcommand("compare", "show a function at all its tags, with distances in ulp and speed");
  AddInput(compare, *options);
  compare->callback([=] {
    for (std::string& argument : options->arguments) Restore(argument);
    Restore(options->value);
    Compare(*options);
  });
}

void AddDescriptions(CLI::App& app) {
  auto list_options = std::make_shared<ListOptions>();
  auto* list = app.add_subcommand("list", "list the functions with their types and tags");
  list->add_option("word", list_options->words,
                   "those alone that all words fit: a part of a name or description, a family, a type");
  list->add_flag("--json", list_options->is_json, "with all that is known of them, as JSON");
  list->callback([=] { List(*list_options); });

  auto info_options = std::make_shared<InfoOptions>();
  auto* info = app.add_subcommand("info", "describe a function: domain, special values, statuses, measured errors and speed");
  AddFunction(info, info_options->function);
  info->add_flag("--json", info_options->is_json, "as JSON");
  info->callback([=] { Info(*info_options); });
}

void AddPlot(CLI::App& app) {
  auto options = std::make_shared<PlotOptions>();
  auto* plot = app.add_subcommand("plot", "draw a function of one real number, or its errors, in the terminal or as a picture");
  AddFunction(plot, options->function);
  plot->add_option("-t,--type", options->type, "element type: 32f or 64f; 64f when not given");
  plot->add_option("--tag", options->tag, "accuracy of the function that is drawn; the highest when not given");
  plot->add_option("-v,--value", options->value, "the exponent of Powx");
  plot->add_option("--from", options->from, "the least argument");
  plot->add_option("--to", options->to, "the largest argument");
  plot->add_flag("--error", options->has_error,
                 "the largest error of each tag: of 32f against the 64f function, of 64f the distance from the highest tag");
  plot->add_option("-o,--output", options->output, "a file that ends in .svg or .png; the terminal when not given");
  plot->add_option("--layer", options->layer, "avx512, avx2 or portable; the fastest that the processor runs when not given");
  plot->callback([=] {
    for (std::string* text : {&options->value, &options->from, &options->to}) Restore(*text);
    Plot(*options);
  });
}

}  // namespace

std::unique_ptr<CLI::App> MakeApplication() {
  auto app = std::make_unique<CLI::App>("Elementwise mathematical functions over arrays", "lumvm");
  app->footer(footer);
  AddDescriptions(*app);
  AddApply(*app);
  AddCompare(*app);
  AddPlot(*app);
  app->add_flag("--version")->description("version of the library, the layer that runs, and its build");

  auto shell = std::make_shared<std::string>();
  auto* completion = app->add_subcommand("completion", "print a completion script for bash or zsh");
  completion->add_option("shell", *shell, "bash or zsh")->required()->check(CLI::IsMember({"bash", "zsh"}));
  completion->callback([=, top = app.get()] { fmt::print("{}", CompletionScript(*top, *shell)); });
  auto* manual = app->add_subcommand("man", "print the manual page, for man -l");
  manual->callback([top = app.get()] { fmt::print("{}", ManualPage(*top)); });
  return app;
}

std::vector<std::string> Arguments(int argc, char** argv) {
  std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
  for (std::string& argument : arguments) {
    if (argument.starts_with('-') && argument.size() > 1 && IsNumber(argument)) argument.insert(0, " ");
  }
  return arguments;
}

}  // namespace lum::tool
