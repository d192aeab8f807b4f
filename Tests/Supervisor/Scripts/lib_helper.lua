return { add = function(a, b) return a + b end }, "second"
