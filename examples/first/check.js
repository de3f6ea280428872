// node check.js ADDON.node FILE.csv; the addon is made in ../node
const path = require('path');

const library = require(path.resolve(process.argv[2]));
const result = library.csvCheck(process.argv[3]);
console.log(result.result, result.detailErrorInfo);
library.terminate();
