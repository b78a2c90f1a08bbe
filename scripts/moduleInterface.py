"""Prints the binary interface of a module that has debug information: the layout, vtable slots and
enumerators of the types that it shares with the host, and its exports and imports with their types.
Usage: moduleInterface.py MODULE"""

import re
import subprocess
import sys
from collections import defaultdict

from elftools.elf.elffile import ELFFile

SUFFIXES = {
    "DW_TAG_pointer_type": "*",
    "DW_TAG_reference_type": "&",
    "DW_TAG_rvalue_reference_type": "&&",
    "DW_TAG_const_type": " const",
    "DW_TAG_array_type": "[]",
}


def name(die):
    value = die.attributes.get("DW_AT_name")
    return value.value.decode() if value else ""


def qualified_name(die):
    scope = die.get_parent()
    prefix = "" if scope.tag == "DW_TAG_compile_unit" else qualified_name(scope) + "::"
    return prefix + (name(die) or "(anonymous)")


def type_name(die):
    """The type of a DIE, with typedefs resolved."""
    if "DW_AT_type" not in die.attributes:
        return "void"
    target = die.get_DIE_from_attribute("DW_AT_type")
    if target.tag == "DW_TAG_typedef":
        return type_name(target)
    if target.tag == "DW_TAG_subroutine_type":
        return type_name(target) + parameters(target)
    if target.tag in SUFFIXES:
        return type_name(target) + SUFFIXES[target.tag]
    return qualified_name(target)


def parameters(function):
    types = []
    constant = ""
    for die in function.iter_children():
        if die.tag == "DW_TAG_formal_parameter":
            if "DW_AT_artificial" not in die.attributes:
                types.append(type_name(die))
            elif " const*" in type_name(die):
                constant = " const"
    return f"({', '.join(types)}){constant}"


def rows(die):
    """The rows of a type, in order: bases, fields and enumerators, then slots."""
    found = []
    for member in die.iter_children():
        attributes = member.attributes
        if "DW_AT_data_member_location" in attributes:
            offset = attributes["DW_AT_data_member_location"].value
            found.append((0, offset, f"{offset}: {type_name(member)} {name(member)}"))
        elif "DW_AT_vtable_elem_location" in attributes:
            _, *digits = attributes["DW_AT_vtable_elem_location"].value
            slot = sum((digit & 127) << 7 * place for place, digit in enumerate(digits))
            function = name(member) + parameters(member)
            found.append((1, slot, f"slot {slot}: {type_name(member)} {function}"))
        elif member.tag == "DW_TAG_enumerator":
            value = attributes["DW_AT_const_value"].value
            found.append((0, value, f"{name(member)} = {value}"))
    return [f"  {row}".rstrip() for *_, row in sorted(found, key=lambda row: row[:2])]


types = defaultdict(set)  # By name, in all translation units.
members = {}  # The types of functions and variables, by symbol.


def read(scope):
    for die in scope.iter_children():
        attributes = die.attributes
        if "DW_AT_linkage_name" in attributes:
            members[attributes["DW_AT_linkage_name"].value.decode()] = type_name(die)
        elif die.tag != "DW_TAG_subprogram":
            if "DW_AT_byte_size" in attributes:
                head = f"{qualified_name(die)}, size {attributes['DW_AT_byte_size'].value}"
                underlying = f", {type_name(die)}" if "DW_AT_type" in attributes else ""
                types[qualified_name(die)].add("\n".join([head + underlying, *rows(die), ""]))
            read(die)


module = ELFFile(open(sys.argv[1], "rb"))
for unit in module.get_dwarf_info().iter_CUs():
    for die in unit.get_top_DIE().iter_children():
        if die.tag == "DW_TAG_namespace" and name(die).startswith("Qv"):
            read(die)

symbols = []
for symbol in module.get_section_by_name(".dynsym").iter_symbols():
    # Without type infos, which depend on what the functions do.
    if re.match("_Z(TV)?N?K?2Qv", symbol.name):
        direction = "imports" if symbol["st_shndx"] == "SHN_UNDEF" else "exports"
        type_of_symbol = members.get(symbol.name, "")
        symbols.append(f"{direction} {symbol.name}" + (type_of_symbol and f": {type_of_symbol}"))
symbols = subprocess.run(["c++filt"], input="\n".join(symbols), capture_output=True, text=True,
                         check=True).stdout

text = "\n".join(["# The binary interface of the module, in bytes. Written by scripts/abi --accept.\n",
                  *(block for key in sorted(types) for block in sorted(types[key])),
                  *sorted(set(symbols.splitlines())), ""])
text = text.replace("std::__cxx11::basic_string<char, std::char_traits<char>, "
                    "std::allocator<char> >", "std::string")
print(text.replace(" >", ">"), end="")
