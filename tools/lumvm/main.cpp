// lumvm: the library's functions on the command line.
#include <fmt/format.h>

#include <CLI/CLI.hpp>

#include "lumvm/commands.h"

namespace {

void AddInput(CLI::App* command, lum::tool::ApplyOptions& options) {
  command->add_option("function", options.function, "the function, such as Exp")->required();
  command
      ->add_option("files", options.files,
                   "input: numbers in text, separated by white space; - is standard input. A function of two inputs takes "
                   "two files, or one in which the elements of both alternate")
      ->expected(0, 2);
  command->add_option("-t,--type", options.type, "element type: 32f, 64f, 32fc, 64fc")->required();
  command->add_option("-v,--value", options.value, "the scalar parameter (the exponent of Powx); complex: \"re im\"");
  command->add_option("--target", options.target,
                      "k0 (AVX-512), a2 (AVX2) or p0 (portable); the first that the processor runs");
  command->add_flag("-b,--binary", options.binary, "input and output are raw elements as they stand in memory");
}

}  // namespace

int main(int argc, char** argv) {
  using lum::tool::Notation;
  CLI::App app("Elementwise mathematical functions over arrays", "lumvm");
  app.require_subcommand(1);
  int exit_code = 0;

  app.add_subcommand("list", "list all functions with their types and tags")->callback([&] { exit_code = lum::tool::List(); });

  std::string function;
  auto* info = app.add_subcommand("info", "describe a function");
  info->add_option("function", function, "the function, such as Exp")->required();
  info->callback([&] { exit_code = lum::tool::Info(function); });

  lum::tool::ApplyOptions options;
  auto* apply = app.add_subcommand("apply", "apply a function to every element of a file");
  AddInput(apply, options);
  apply->add_option("--tag", options.tag, "accuracy in bits, such as A24; the highest when not given");
  apply->add_option("-o,--output", options.output, "output file, written whole or not at all; - is standard output");
  apply->add_flag_callback(
      "--hex", [&] { options.notation = Notation::hexadecimal; }, "write hexadecimal floating-point numbers");
  apply->add_flag_callback(
      "--bits", [&] { options.notation = Notation::bits; }, "write bit patterns");
  apply->callback([&] { exit_code = lum::tool::Apply(options); });

  auto* compare = app.add_subcommand("compare", "show a function at all its tags, with distances in ulp and speed");
  AddInput(compare, options);
  compare->callback([&] { exit_code = lum::tool::Compare(options); });

  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& request) { return app.exit(request); } catch (const CLI::ParseError& error) {
    fmt::print(stderr, "lumvm: {}\n", error.what());
    return 2;
  } catch (const lum::tool::InputError& error) {
    fmt::print(stderr, "lumvm: {}\n", error.what());
    return 2;
  }
  return exit_code;
}
