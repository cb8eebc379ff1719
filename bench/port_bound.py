"""The least time of kernels' loops by the processor's execution ports, from llvm-mca.

llvm-mca's model of the Ice Lake server is used: of the processors with AVX-512 it is the newest that it models in full. Latencies
and memory are left out, so the figure is a floor."""

import re
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tools"))
from block_loops import block_loops, frame_registers, is_array_access, is_store, kernel_code

BYTES = {"ZMMWORD": 64, "YMMWORD": 32}


def loop_bound(way, output_bytes, stack):
    """Cycles an element of one loop: llvm-mca's reciprocal throughput of the block over the elements it stores."""
    stored = sum(BYTES[i.operands.split()[0]] for i in way if is_array_access(i, stack) and is_store(i))
    lines = []
    for instruction in way:
        if instruction.mnemonic.startswith("j"):
            continue
        operands = re.sub(r"[#<].*", "", instruction.operands)
        # objdump writes the rounding behind its operand, llvm-mca reads it as an operand.
        operands = re.sub(r"(\w)\{(r.-sae|sae)\}", r"\1, {\2}", operands)
        lines.append(f"{instruction.mnemonic} {operands}".strip())
    command = ["llvm-mca", "-march=x86-64", "-mcpu=icelake-server", "-x86-asm-syntax=intel", "-iterations=100"]
    result = subprocess.run(command, input="\n".join(lines), capture_output=True, text=True)
    if "error:" in result.stderr:
        return None
    throughput = re.search(r"Block RThroughput: ([\d.]+)", result.stdout)
    return float(throughput[1]) * output_bytes / stored if throughput and stored else None


def bounds(library, output_bytes):
    """Kernel name to cycles an element, for the kernels in output_bytes (bytes that an element's results take)."""
    result = {}
    for name, code in kernel_code(library).items():
        if name not in output_bytes:
            continue
        stack = frame_registers(code)
        ways = block_loops(code, stack)
        if ways and (bound := loop_bound(ways[0], output_bytes[name], stack)):
            result[name] = bound
    return result
