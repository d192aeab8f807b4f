"""Tells what a phone gets, a line a slice: its size, its imports, and what it installs there."""

import built
import fixups
import objc_metadata
import smoke


def main():
    print(f"{built.DEB.name}: {built.DEB.stat().st_size} bytes")
    print(f"{'slice':24}{'bytes':>8}{'imports':>9}{'libraries':>11}{'classes':>9}{'categories':>12}{'added':>7}"
          f"{'hooked':>8}")
    for name, file in built.slices():
        metadata, kinds = objc_metadata.Metadata(file), [row[2] for row in smoke.rows(file)]
        imports = {binding.symbol for binding in fixups.all_bindings(file)}
        print(f"{name:24}{len(file.data):8}{len(imports):9}{len(file.libraries):11}{len(metadata.classes):9}"
              f"{len(metadata.categories):12}{kinds.count('added'):7}{kinds.count('hooked'):8}")


if __name__ == "__main__":
    main()
