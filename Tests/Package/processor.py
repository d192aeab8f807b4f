"""An emulated processor of a phone with one slice in its memory, placed and bound as the loader would."""

import pathlib
import struct
import sys

import unicorn
from unicorn import arm64_const as arm64
from unicorn import arm_const as arm

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Packaging/device"))

import fixups  # noqa: E402

SLIDE = 0x10000000  # where the slice lies
CALLS = 0x20000000  # one slot for each imported function; getting there is the call
DATA = 0x28000000  # one slot for each imported constant or class, all zeros
STACK = 0x30000000
HEAP = 0x40000000
RETURN = CALLS + 0x1F0000  # where a call from outside returns to
REGION = 0x200000
SLOT = 0x100
MOST_INSTRUCTIONS = 2_000_000

RETURN_ARM64, RETURN_ARM = bytes.fromhex("c0035fd6"), bytes.fromhex("1eff2fe1")  # ret; bx lr


class Stopped(Exception):
    """The code did something that would have ended the process, or did not come to an end."""


class Processor:
    """`is_data(symbol)` tells constants from functions; `called(symbol)` runs a function in its place and gives its
    result, an integer or None for what the registers hold."""

    def __init__(self, file, is_data, called):
        self.file, self.is64, self.word = file, file.is64, file.word
        self.is_data, self.called = is_data, called
        self.engine = (unicorn.Uc(unicorn.UC_ARCH_ARM64, unicorn.UC_MODE_ARM) if self.is64
                       else unicorn.Uc(unicorn.UC_ARCH_ARM, unicorn.UC_MODE_ARM))
        self.slots, self.names, self.used, self.failure = {}, {}, HEAP, None
        for region in (CALLS, DATA, STACK, HEAP):
            self.engine.mem_map(region, REGION)
        self.engine.mem_write(CALLS, (RETURN_ARM64 if self.is64 else RETURN_ARM) * (REGION // 4))
        self._registers()
        self._place()
        self.engine.hook_add(unicorn.UC_HOOK_CODE, self._on_call, begin=CALLS, end=RETURN - 1)

    def _registers(self):
        if self.is64:
            self.numbers = [getattr(arm64, f"UC_ARM64_REG_X{index}") for index in range(8)]
            self.stack_pointer, self.link = arm64.UC_ARM64_REG_SP, arm64.UC_ARM64_REG_LR
            self.engine.reg_write(arm64.UC_ARM64_REG_CPACR_EL1, 3 << 20)  # floating point on
        else:
            self.numbers = [getattr(arm, f"UC_ARM_REG_R{index}") for index in range(4)]
            self.stack_pointer, self.link = arm.UC_ARM_REG_SP, arm.UC_ARM_REG_LR
            access = self.engine.reg_read(arm.UC_ARM_REG_C1_C0_2)
            self.engine.reg_write(arm.UC_ARM_REG_C1_C0_2, access | 0xF << 20)
            self.engine.reg_write(arm.UC_ARM_REG_FPEXC, 1 << 30)

    def _place(self):
        for segment in self.file.segments:
            self.engine.mem_map(SLIDE + segment.address, (segment.size + 0x3FFF) & ~0x3FFF if self.is64
                                else (segment.size + 0xFFF) & ~0xFFF)
            content = self.file.data[segment.offset : segment.offset + segment.file_size]
            self.engine.mem_write(SLIDE + segment.address, content)
        for address in fixups.rebases(self.file):
            self.write(SLIDE + address, self.read(SLIDE + address) + SLIDE)
        for binding in fixups.all_bindings(self.file):
            self.write(SLIDE + binding.address, self.slot(binding.symbol) + binding.addend)

    # Memory.

    def slot(self, symbol):
        """The address that stands for the symbol."""
        if symbol not in self.slots:
            address = (DATA if self.is_data(symbol) else CALLS) + SLOT * (1 + len(self.slots))
            self.slots[symbol], self.names[address] = address, symbol
        return self.slots[symbol]

    def allocate(self, size):
        address, self.used = self.used, self.used + ((size + 63) & ~63)
        return address

    def read(self, address):
        return int.from_bytes(self.engine.mem_read(address, self.word), "little")

    def write(self, address, value):
        self.engine.mem_write(address, (value & (1 << 8 * self.word) - 1).to_bytes(self.word, "little"))

    def string(self, address):
        text = b""
        while not text.endswith(b"\0"):
            text += bytes(self.engine.mem_read(address + len(text), 1))
        return text[:-1].decode()

    # Calls.

    def argument(self, index):
        if index < len(self.numbers):
            return self.engine.reg_read(self.numbers[index])
        stack = self.engine.reg_read(self.stack_pointer)
        return self.read(stack + self.word * (index - len(self.numbers)))

    def double_after(self, integers):
        """The first double of a call, after that many integers: a register of its own on 64 bits, the next two words
        on 32."""
        if self.is64:
            return struct.unpack("<d", struct.pack("<Q", self.engine.reg_read(arm64.UC_ARM64_REG_D0)))[0]
        return struct.unpack("<d", struct.pack("<II", self.argument(integers), self.argument(integers + 1)))[0]

    def clear_floats(self):
        for index in range(4) if self.is64 else ():
            self.engine.reg_write(arm64.UC_ARM64_REG_D0 + index, 0)

    def _on_call(self, engine, address, size, _):
        symbol = self.names.get(address)
        try:
            if symbol is None:
                raise Stopped(f"jumped to {address:#x}")
            result = self.called(symbol)
            if result is not None:
                engine.reg_write(self.numbers[0], result & (1 << 8 * self.word) - 1)
        except Exception as failure:  # must not cross the emulator, which is written in C
            self.failure = failure
            engine.emu_stop()

    def call(self, address, *arguments):
        """Runs the function (with the lowest bit set for Thumb code) to its end, and gives its integer result."""
        for number, value in zip(self.numbers, arguments):
            self.engine.reg_write(number, value)
        self.engine.reg_write(self.stack_pointer, STACK + REGION // 2)
        self.engine.reg_write(self.link, RETURN)
        self.failure = None
        try:
            self.engine.emu_start(address, RETURN, count=MOST_INSTRUCTIONS)
        except unicorn.UcError as error:
            at = self.engine.reg_read(arm64.UC_ARM64_REG_PC if self.is64 else arm.UC_ARM_REG_PC)
            raise Stopped(f"{error} at {at - SLIDE:#x}") from error
        if self.failure:
            raise self.failure
        if self.engine.reg_read(arm64.UC_ARM64_REG_PC if self.is64 else arm.UC_ARM_REG_PC) != RETURN:
            raise Stopped(f"not at an end after {MOST_INSTRUCTIONS} instructions")
        return self.engine.reg_read(self.numbers[0])
