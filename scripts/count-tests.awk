#!/usr/bin/awk -f
# Counts the tests in CTest's LastTest.log. A CTest test may be a whole GoogleTest program: then
# the program's own summary counts, otherwise the CTest test counts as one.
/^[0-9]+\/[0-9]+ Test(ing)?: / { passed_inside = failed_inside = summary = 0 }
/^\[  PASSED  \] [0-9]+ tests?\./ { passed_inside = $4; summary = 1 }
/^\[  FAILED  \] [0-9]+ tests?, listed below/ { failed_inside = $4 }
/^Test Passed\./ { passed += summary ? passed_inside : 1 }
/^Test (Failed|Timeout|Not Run)/ { passed += passed_inside; failed += failed_inside ? failed_inside : 1 }
END { printf "%d passed, %d failed\n", passed, failed }
