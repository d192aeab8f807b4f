"""Signs thin Mach-O files ad hoc, the way that iOS 7 and 8 ask for: SHA-1 hashes of every page, no certificate."""

import hashlib
import struct

import macho

PAGE = 4096
HASH_SIZE = 20

CODE_SIGNATURE = 0x1D
SIGNATURE_MAGIC, DIRECTORY_MAGIC, REQUIREMENTS_MAGIC = 0xFADE0CC0, 0xFADE0C02, 0xFADE0C01
DIRECTORY_SLOT, REQUIREMENTS_SLOT = 0, 2
DIRECTORY_VERSION, AD_HOC, SHA1 = 0x20001, 2, 1
DIRECTORY_HEAD = 44


def sha1(data):
    return hashlib.sha1(data).digest()


def aligned(number, to):
    return (number + to - 1) // to * to


def end_of_commands(data, file):
    return file.commands_at + struct.unpack_from("<I", data, 20)[0]


def has_room(data):
    """Whether the signature's load command fits behind the others."""
    file = macho.MachO(data)
    first_content = min(section.offset for section in file.sections.values() if section.offset)
    return end_of_commands(data, file) + 16 <= first_content


def add_command(data, file, limit, size):
    """Names the signature, which takes `size` bytes from `limit` on, in a load command of its own."""
    end = end_of_commands(data, file)
    if file.command("LC_CODE_SIGNATURE") or not has_room(data[:limit]):
        raise ValueError("signed already, or no room for another load command")
    struct.pack_into("<4I", data, end, CODE_SIGNATURE, 16, limit, size)
    struct.pack_into("<II", data, 16, len(file.commands) + 1, end + 16 - file.commands_at)
    layout, page = ("<4Q", 0x4000) if file.is64 else ("<4I", 0x1000)
    linkedit = next(segment for segment in file.segments if segment.name == "__LINKEDIT")
    length = limit + size - linkedit.offset
    struct.pack_into(layout, data, linkedit.header + 24, linkedit.address, aligned(length, page), linkedit.offset,
                     length)


def directory(data, identifier, requirements):
    """The code directory of `data`, which ends where the signature begins. Besides the pages it holds the hash of the
    requirements; there is no Info.plist in the file, which is the second special slot."""
    special = [sha1(requirements), bytes(HASH_SIZE)]
    pages = [sha1(data[at : at + PAGE]) for at in range(0, len(data), PAGE)]
    name = identifier.encode() + b"\0"
    hashes_at = DIRECTORY_HEAD + len(name) + HASH_SIZE * len(special)
    length = hashes_at + HASH_SIZE * len(pages)
    head = struct.pack(">9I4BI", DIRECTORY_MAGIC, length, DIRECTORY_VERSION, AD_HOC, hashes_at, DIRECTORY_HEAD,
                       len(special), len(pages), len(data), HASH_SIZE, SHA1, 0, PAGE.bit_length() - 1, 0)
    return head + name + b"".join(special) + b"".join(pages)


def signed(data, identifier):
    """The file with its signature appended and named in a load command."""
    file = macho.MachO(data)
    data = bytearray(data)
    data += bytes(-len(data) % 16)
    limit = len(data)
    requirements = struct.pack(">III", REQUIREMENTS_MAGIC, 12, 0)
    length = 12 + 16 + len(directory(data, identifier, requirements)) + len(requirements)
    add_command(data, file, limit, aligned(length, 16))
    code = directory(data, identifier, requirements)
    index = struct.pack(">4I", DIRECTORY_SLOT, 28, REQUIREMENTS_SLOT, 28 + len(code))
    blob = struct.pack(">III", SIGNATURE_MAGIC, length, 2) + index + code + requirements
    return bytes(data + blob.ljust(aligned(length, 16), b"\0"))


def faults(file):
    """What is wrong with the signature of a slice."""
    at = file.command("LC_CODE_SIGNATURE")
    if at is None:
        return ["it is not signed"]
    start, = struct.unpack_from("<I", file.data, at + 8)
    blob = file.data[start:]
    magic, _, count = struct.unpack_from(">III", blob)
    slots = dict(struct.unpack_from(">II", blob, 12 + 8 * index) for index in range(count))
    if magic != SIGNATURE_MAGIC or DIRECTORY_SLOT not in slots:
        return ["the signature has no code directory"]
    code = blob[slots[DIRECTORY_SLOT] :]
    hashes_at, limit, size, kind = (struct.unpack_from(layout, code, at)[0]
                                    for layout, at in ((">I", 16), (">I", 32), (">B", 36), (">B", 37)))
    if (limit, size, kind) != (start, HASH_SIZE, SHA1):
        return ["the code directory does not cover the slice with SHA-1"]
    return [f"page {index} is not what was signed" for index, page in enumerate(range(0, limit, PAGE))
            if sha1(file.data[page : min(page + PAGE, limit)])
            != code[hashes_at + HASH_SIZE * index : hashes_at + HASH_SIZE * (index + 1)]]
