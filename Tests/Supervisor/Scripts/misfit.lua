-- A library whose classes do not fit the platform's is refused, with the class's name.
-- exit: 2
-- stderr: Misfit.dylib does not fit the platform
-- stderr: MisfitView
boot { root = args[1] }
