"""The functions of a shared library as lists of instructions, read from objdump."""

import re
import subprocess
from dataclasses import dataclass


@dataclass
class Instruction:
    address: int
    mnemonic: str
    operands: str  # with the symbol that objdump names behind '#' or in '<>'

    def target(self):
        """The fixed address that a jump or call goes to, or None."""
        match = re.match(r"([0-9a-f]+) ?(<|$)", self.operands)
        return int(match[1], 16) if match else None


def functions(library):
    """Name to instructions, in address order; the names are demangled."""
    command = ["objdump", "-d", "-M", "intel", "--no-show-raw-insn", "-C", "-w", library]
    text = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    result = {}
    current = None
    for line in text.splitlines():
        if head := re.match(r"[0-9a-f]+ <(.*)>:$", line):
            current = result.setdefault(head[1], [])
        elif (match := re.match(r"\s+([0-9a-f]+):\s+(.*)$", line)) and current is not None:
            words = re.sub(r"^((rep|repz|lock|notrack|bnd|data16|cs|ds) )*", "", match[2]).split(None, 1)
            if words:
                current.append(Instruction(int(match[1], 16), words[0], words[1] if len(words) > 1 else ""))
    return result
